#pragma once

#include "ApplicationText.h"

namespace gallery {

struct HebrewTexts {
    static constexpr std::string_view language = "he";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "הוספת אימון"},
        {"All pickers", "כל הבוררים"},
        {"Workout", "אימון"},
        {"Workouts", "אימונים"},
        {"Best interval", "האינטרוול הטוב ביותר"},
        {"Heart", "לב"},
        {"Conditions", "תנאים"},
        {"Body", "גוף"},
        {"Distance and time", "מרחק וזמן"},
        {"Distance", "מרחק"},
        {"Duration", "משך זמן"},
        {"Average speed", "מהירות ממוצעת"},
        {"Speed", "מהירות"},
        {"Pace", "קצב"},
        {"Calories", "קלוריות"},
        {"Heart rate", "דופק"},
        {"Resting pulse", "דופק במנוחה"},
        {"Beats per minute", "פעימות לדקה"},
        {"Weather", "מזג אוויר"},
        {"Temperature", "טמפרטורה"},
        {"Water temperature", "טמפרטורת המים"},
        {"Weight", "משקל"},
        {"Height", "גובה"},
        {"Choose a row to change its value.", "יש לבחור שורה כדי לשנות את ערכה."},
        // Settings and their choices.
        {"Settings", "הגדרות"},
        {"Units", "יחידות"},
        {"Metric", "מטריות"},
        {"Imperial", "אימפריאליות"},
        {"Kilograms", "קילוגרם"},
        {"Pounds", "פאונד"},
        {"Stones", "סטון"},
        {"Text size", "גודל טקסט"},
        {"Look", "מראה"},
        {"System", "לפי המערכת"},
        {"Light", "בהיר"},
        {"Dark", "כהה"},
        {"Decimal separator", "מפריד עשרוני"},
        {"Automatic", "אוטומטי"},
        {"All pages", "כל הדפים"},
        {"Light or dark", "בהיר או כהה"},
        {"Motion", "תנועה"},
        {"Full", "מלאה"},
        {"Reduced", "מופחתת"},
        {"Contrast", "ניגודיות"},
        {"Normal", "רגילה"},
        {"High", "גבוהה"},
        {"Wheel clicks", "נקישות הגלגל"},
        {"On", "פועל"},
        {"Off", "כבוי"},
        {"Language", "שפה"},
        // Files.
        {"Open", "פתיחה"},
        {"Save", "שמירה"},
        {"Opened:", "נפתח:"},
        {"Saved:", "נשמר:"},
        {"The file could not be read:", "לא ניתן לקרוא את הקובץ:"},
        {"The file could not be written:", "לא ניתן לכתוב את הקובץ:"},
        {"The file has no number for:", "בקובץ חסר מספר עבור:"},
        {"A number in the file is out of range:", "מספר בקובץ חורג מהטווח:"},
        {"The file names no weather that this application knows.", "הקובץ אינו מציין מזג אוויר שהיישום מכיר."},
        {"This file is damaged, or no workout.", "הקובץ פגום או אינו אימון."},
        {"This file is damaged.", "הקובץ פגום."},
        {"This file is no workout.", "הקובץ אינו אימון."},
        {"This workout was saved by a newer version of this application.", "האימון נשמר בגרסה חדשה יותר של היישום."},
        // Weather.
        {"clear", "בהיר"},
        {"partly cloudy", "מעונן חלקית"},
        {"cloudy", "מעונן"},
        {"overcast", "מעונן לגמרי"},
        {"fog", "ערפל"},
        {"drizzle", "טפטוף"},
        {"rain", "גשם"},
        {"showers", "ממטרים"},
        {"thunderstorm", "סופת רעמים"},
        {"sleet", "גשם מעורב בשלג"},
        {"snow", "שלג"},
        {"wind", "רוח"},
    };
};

} // namespace gallery
