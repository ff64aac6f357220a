#pragma once

#include "ApplicationText.h"

namespace gallery {

struct TurkishTexts {
    static constexpr std::string_view language = "tr";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "Antrenman ekle"},
        {"All pickers", "Tüm seçiciler"},
        {"Workout", "Antrenman"},
        {"Workouts", "Antrenmanlar"},
        {"Best interval", "En iyi aralık"},
        {"Heart", "Kalp"},
        {"Conditions", "Koşullar"},
        {"Body", "Vücut"},
        {"Distance and time", "Mesafe ve süre"},
        {"Distance", "Mesafe"},
        {"Duration", "Süre"},
        {"Average speed", "Ortalama hız"},
        {"Speed", "Hız"},
        {"Pace", "Tempo"},
        {"Calories", "Kalori"},
        {"Heart rate", "Nabız"},
        {"Resting pulse", "Dinlenme nabzı"},
        {"Beats per minute", "Dakikadaki atım"},
        {"Weather", "Hava durumu"},
        {"Temperature", "Sıcaklık"},
        {"Water temperature", "Su sıcaklığı"},
        {"Weight", "Ağırlık"},
        {"Height", "Boy"},
        {"Choose a row to change its value.", "Değerini değiştirmek için bir satır seçin."},
        // Settings and their choices.
        {"Settings", "Ayarlar"},
        {"Units", "Birimler"},
        {"Metric", "Metrik"},
        {"Imperial", "İngiliz"},
        {"Kilograms", "Kilogram"},
        {"Pounds", "Libre"},
        {"Stones", "Stone"},
        {"Text size", "Metin boyutu"},
        {"Look", "Görünüm"},
        {"System", "Sistem"},
        {"Light", "Açık"},
        {"Dark", "Koyu"},
        {"Decimal separator", "Ondalık ayırıcı"},
        {"Automatic", "Otomatik"},
        {"All pages", "Tüm sayfalar"},
        {"Light or dark", "Açık veya koyu"},
        {"Motion", "Hareket"},
        {"Full", "Tam"},
        {"Reduced", "Azaltılmış"},
        {"Contrast", "Kontrast"},
        {"Normal", "Normal"},
        {"High", "Yüksek"},
        {"Wheel clicks", "Tekerlek sesi"},
        {"On", "Açık"},
        {"Off", "Kapalı"},
        {"Language", "Dil"},
        // Files.
        {"Open", "Aç"},
        {"Save", "Kaydet"},
        {"Opened:", "Açıldı:"},
        {"Saved:", "Kaydedildi:"},
        {"The file could not be read:", "Dosya okunamadı:"},
        {"The file could not be written:", "Dosya yazılamadı:"},
        {"The file has no number for:", "Dosyada şunun için sayı yok:"},
        {"A number in the file is out of range:", "Dosyadaki bir sayı aralık dışında:"},
        {"The file names no weather that this application knows.", "Dosyada bu uygulamanın tanıdığı bir hava durumu yok."},
        {"This file is damaged, or no workout.", "Bu dosya hasarlı veya bir antrenman değil."},
        {"This file is damaged.", "Bu dosya hasarlı."},
        {"This file is no workout.", "Bu dosya bir antrenman değil."},
        {"This workout was saved by a newer version of this application.",
         "Bu antrenman, bu uygulamanın daha yeni bir sürümüyle kaydedilmiş."},
        // Weather.
        {"clear", "açık"},
        {"partly cloudy", "parçalı bulutlu"},
        {"cloudy", "bulutlu"},
        {"overcast", "kapalı"},
        {"fog", "sis"},
        {"drizzle", "çisenti"},
        {"rain", "yağmur"},
        {"showers", "sağanak"},
        {"thunderstorm", "gök gürültülü"},
        {"sleet", "sulu kar"},
        {"snow", "kar"},
        {"wind", "rüzgâr"},
    };
};

} // namespace gallery
