#pragma once

#include "ApplicationText.h"

namespace gallery {

struct ArabicTexts {
    static constexpr std::string_view language = "ar";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "إضافة تمرين"},
        {"All pickers", "كل المنتقيات"},
        {"Workout", "التمرين"},
        {"Workouts", "التمارين"},
        {"Best interval", "أفضل فترة"},
        {"Heart", "القلب"},
        {"Conditions", "الظروف"},
        {"Body", "الجسم"},
        {"Distance and time", "المسافة والزمن"},
        {"Distance", "المسافة"},
        {"Duration", "المدة"},
        {"Average speed", "متوسط السرعة"},
        {"Speed", "السرعة"},
        {"Pace", "الوتيرة"},
        {"Calories", "السعرات الحرارية"},
        {"Heart rate", "معدل نبض القلب"},
        {"Resting pulse", "النبض أثناء الراحة"},
        {"Beats per minute", "النبضات في الدقيقة"},
        {"Weather", "الطقس"},
        {"Temperature", "درجة الحرارة"},
        {"Water temperature", "درجة حرارة الماء"},
        {"Weight", "الوزن"},
        {"Height", "الطول"},
        {"Choose a row to change its value.", "اختر صفًا لتغيير قيمته."},
        // Settings and their choices.
        {"Settings", "الإعدادات"},
        {"Units", "الوحدات"},
        {"Metric", "مترية"},
        {"Imperial", "إمبراطورية"},
        {"Kilograms", "كيلوغرام"},
        {"Pounds", "رطل"},
        {"Stones", "ستون"},
        {"Text size", "حجم النص"},
        {"Look", "المظهر"},
        {"System", "حسب النظام"},
        {"Light", "فاتح"},
        {"Dark", "داكن"},
        {"Decimal separator", "الفاصلة العشرية"},
        {"Automatic", "تلقائي"},
        {"All pages", "كل الصفحات"},
        {"Light or dark", "فاتح أو داكن"},
        {"Motion", "الحركة"},
        {"Full", "كاملة"},
        {"Reduced", "مخفضة"},
        {"Contrast", "التباين"},
        {"Normal", "عادي"},
        {"High", "عالٍ"},
        {"Wheel clicks", "نقرات العجلة"},
        {"On", "تشغيل"},
        {"Off", "إيقاف"},
        {"Language", "اللغة"},
        // Files.
        {"Open", "فتح"},
        {"Save", "حفظ"},
        {"Opened:", "تم الفتح:"},
        {"Saved:", "تم الحفظ:"},
        {"The file could not be read:", "تعذرت قراءة الملف:"},
        {"The file could not be written:", "تعذرت كتابة الملف:"},
        {"The file has no number for:", "لا يوجد في الملف رقم لـ:"},
        {"A number in the file is out of range:", "رقم في الملف خارج النطاق:"},
        {"The file names no weather that this application knows.", "لا يذكر الملف حالة طقس يعرفها هذا التطبيق."},
        {"This file is damaged, or no workout.", "هذا الملف تالف أو ليس تمرينًا."},
        {"This file is damaged.", "هذا الملف تالف."},
        {"This file is no workout.", "هذا الملف ليس تمرينًا."},
        {"This workout was saved by a newer version of this application.", "حُفظ هذا التمرين بإصدار أحدث من هذا التطبيق."},
        // Weather.
        {"clear", "صحو"},
        {"partly cloudy", "غائم جزئيًا"},
        {"cloudy", "غائم"},
        {"overcast", "غائم كليًا"},
        {"fog", "ضباب"},
        {"drizzle", "رذاذ"},
        {"rain", "مطر"},
        {"showers", "زخات مطر"},
        {"thunderstorm", "عاصفة رعدية"},
        {"sleet", "مطر ثلجي"},
        {"snow", "ثلج"},
        {"wind", "رياح"},
    };
};

} // namespace gallery
