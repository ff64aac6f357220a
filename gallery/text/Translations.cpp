#include "Translations.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include <GXUIPickers/GXLocalization.h>

namespace gallery {

namespace {

// Wording. "Pt" is Brazilian, as the pickers' own texts are. Choices agree with the name of what they choose: "Metric" with "Units", "Full"
// with "Motion", "High" with "Contrast", "Light" with "Look". "Height" and "Weight" are a body's. Weather is written as within a sentence.
// What ends in a colon is followed by a name; French sets a space before the colon, at which no line may break.
constexpr Translations::Row table[] = {
    // Pages, sections and rows.
    {"Add workout",
     {"Training hinzufügen", "Nouvel entraînement", "Añadir entrenamiento", "Aggiungi allenamento", "Adicionar treino",
      "Training toevoegen", "Dodaj trening", "Добавить тренировку", "Antrenman ekle", "ワークアウトを追加", "添加训练", "운동 추가"}},
    {"All pickers",
     {"Alle Auswahlräder", "Tous les sélecteurs", "Todos los selectores", "Tutti i selettori", "Todos os seletores", "Alle kiezers",
      "Wszystkie selektory", "Все элементы выбора", "Tüm seçiciler", "すべてのピッカー", "所有选择器", "모든 선택기"}},
    {"Workout",
     {"Training", "Entraînement", "Entrenamiento", "Allenamento", "Treino", "Training", "Trening", "Тренировка", "Antrenman",
      "ワークアウト", "训练", "운동"}},
    {"Workouts",
     {"Trainings", "Entraînements", "Entrenamientos", "Allenamenti", "Treinos", "Trainingen", "Treningi", "Тренировки", "Antrenmanlar",
      "ワークアウト", "训练", "운동"}},
    {"Best interval",
     {"Bestes Intervall", "Meilleur intervalle", "Mejor intervalo", "Miglior intervallo", "Melhor intervalo", "Beste interval",
      "Najlepszy interwał", "Лучший интервал", "En iyi aralık", "ベストインターバル", "最佳间歇", "최고 인터벌"}},
    {"Heart", {"Herz", "Cœur", "Corazón", "Cuore", "Coração", "Hart", "Serce", "Сердце", "Kalp", "心臓", "心脏", "심장"}},
    {"Conditions",
     {"Bedingungen", "Conditions", "Condiciones", "Condizioni", "Condições", "Omstandigheden", "Warunki", "Условия", "Koşullar", "環境",
      "环境", "환경"}},
    {"Body", {"Körper", "Corps", "Cuerpo", "Corpo", "Corpo", "Lichaam", "Ciało", "Тело", "Vücut", "身体", "身体", "신체"}},
    {"Distance and time",
     {"Distanz und Zeit", "Distance et temps", "Distancia y tiempo", "Distanza e tempo", "Distância e tempo", "Afstand en tijd",
      "Dystans i czas", "Дистанция и время", "Mesafe ve süre", "距離とタイム", "距离和时间", "거리 및 시간"}},
    {"Distance",
     {"Distanz", "Distance", "Distancia", "Distanza", "Distância", "Afstand", "Dystans", "Дистанция", "Mesafe", "距離", "距离", "거리"}},
    {"Duration",
     {"Dauer", "Durée", "Duración", "Durata", "Duração", "Duur", "Czas trwania", "Длительность", "Süre", "所要時間", "时长", "소요 시간"}},
    {"Average speed",
     {"Ø-Geschwindigkeit", "Vitesse moyenne", "Velocidad media", "Velocità media", "Velocidade média", "Gemiddelde snelheid",
      "Średnia prędkość", "Средняя скорость", "Ortalama hız", "平均速度", "平均速度", "평균 속도"}},
    {"Speed",
     {"Geschwindigkeit", "Vitesse", "Velocidad", "Velocità", "Velocidade", "Snelheid", "Prędkość", "Скорость", "Hız", "速度", "速度",
      "속도"}},
    {"Pace", {"Pace", "Allure", "Ritmo", "Passo", "Ritmo", "Tempo", "Tempo", "Темп", "Tempo", "ペース", "配速", "페이스"}},
    {"Calories",
     {"Kalorien", "Calories", "Calorías", "Calorie", "Calorias", "Calorieën", "Kalorie", "Калории", "Kalori", "カロリー", "卡路里",
      "칼로리"}},
    {"Heart rate",
     {"Herzfrequenz", "Fréquence cardiaque", "Frecuencia cardiaca", "Frequenza cardiaca", "Frequência cardíaca", "Hartslag", "Tętno",
      "Пульс", "Nabız", "心拍数", "心率", "심박수"}},
    {"Resting pulse",
     {"Ruhepuls", "Pouls au repos", "Pulso en reposo", "Battito a riposo", "Pulso em repouso", "Hartslag in rust", "Tętno spoczynkowe",
      "Пульс в покое", "Dinlenme nabzı", "安静時心拍数", "静息心率", "안정 시 심박수"}},
    {"Beats per minute",
     {"Schläge pro Minute", "Battements par minute", "Latidos por minuto", "Battiti al minuto", "Batimentos por minuto",
      "Slagen per minuut", "Uderzenia na minutę", "Удары в минуту", "Dakikadaki atım", "1分あたりの心拍数", "每分钟心跳次数",
      "분당 심박수"}},
    {"Weather", {"Wetter", "Météo", "Clima", "Meteo", "Clima", "Weer", "Pogoda", "Погода", "Hava durumu", "天気", "天气", "날씨"}},
    {"Temperature",
     {"Temperatur", "Température", "Temperatura", "Temperatura", "Temperatura", "Temperatuur", "Temperatura", "Температура", "Sıcaklık",
      "温度", "温度", "온도"}},
    {"Water temperature",
     {"Wassertemperatur", "Température de l’eau", "Temperatura del agua", "Temperatura acqua", "Temperatura da água", "Watertemperatuur",
      "Temperatura wody", "Температура воды", "Su sıcaklığı", "水温", "水温", "수온"}},
    {"Weight", {"Gewicht", "Poids", "Peso", "Peso", "Peso", "Gewicht", "Waga", "Вес", "Ağırlık", "体重", "体重", "체중"}},
    {"Height", {"Größe", "Taille", "Altura", "Altezza", "Altura", "Lengte", "Wzrost", "Рост", "Boy", "身長", "身高", "키"}},

    // Settings and their choices.
    {"Settings",
     {"Einstellungen", "Réglages", "Ajustes", "Impostazioni", "Ajustes", "Instellingen", "Ustawienia", "Настройки", "Ayarlar", "設定",
      "设置", "설정"}},
    {"Units",
     {"Einheiten", "Unités", "Unidades", "Unità", "Unidades", "Eenheden", "Jednostki", "Единицы", "Birimler", "単位", "单位", "단위"}},
    {"Metric",
     {"Metrisch", "Métriques", "Métricas", "Metriche", "Métricas", "Metrisch", "Metryczne", "Метрические", "Metrik", "メートル法", "公制",
      "미터법"}},
    {"Imperial",
     {"Imperial", "Impériales", "Imperiales", "Imperiali", "Imperiais", "Imperiaal", "Imperialne", "Имперские", "İngiliz", "ヤードポンド法",
      "英制", "야드파운드법"}},
    {"Kilograms",
     {"Kilogramm", "Kilogrammes", "Kilogramos", "Chilogrammi", "Quilogramas", "Kilogram", "Kilogramy", "Килограммы", "Kilogram",
      "キログラム", "公斤", "킬로그램"}},
    {"Pounds", {"Pfund", "Livres", "Libras", "Libbre", "Libras", "Pond", "Funty", "Фунты", "Libre", "ポンド", "磅", "파운드"}},
    {"Stones", {"Stone", "Stones", "Stones", "Stone", "Stones", "Stone", "Kamienie", "Стоуны", "Stone", "ストーン", "英石", "스톤"}},
    {"Text size",
     {"Textgröße", "Taille du texte", "Tamaño del texto", "Dimensione testo", "Tamanho do texto", "Tekstgrootte", "Rozmiar tekstu",
      "Размер текста", "Metin boyutu", "文字サイズ", "文字大小", "글자 크기"}},
    {"Look",
     {"Darstellung", "Apparence", "Aspecto", "Aspetto", "Aparência", "Weergave", "Wygląd", "Оформление", "Görünüm", "外観", "外观",
      "화면 모드"}},
    {"System",
     {"System", "Système", "Sistema", "Sistema", "Sistema", "Systeem", "Systemowy", "Системное", "Sistem", "システム", "跟随系统",
      "시스템"}},
    {"Light", {"Hell", "Clair", "Claro", "Chiaro", "Claro", "Licht", "Jasny", "Светлое", "Açık", "ライト", "浅色", "라이트"}},
    {"Dark", {"Dunkel", "Sombre", "Oscuro", "Scuro", "Escuro", "Donker", "Ciemny", "Тёмное", "Koyu", "ダーク", "深色", "다크"}},
    {"Decimal separator",
     {"Dezimaltrennzeichen", "Séparateur décimal", "Separador decimal", "Separatore decimale", "Separador decimal", "Decimaalteken",
      "Separator dziesiętny", "Десятичный знак", "Ondalık ayırıcı", "小数点記号", "小数分隔符", "소수점 기호"}},
    {"Automatic",
     {"Automatisch", "Automatique", "Automático", "Automatico", "Automático", "Automatisch", "Automatyczny", "Автоматически", "Otomatik",
      "自動", "自动", "자동"}},
    {"All pages",
     {"Alle Seiten", "Toutes les pages", "Todas las páginas", "Tutte le pagine", "Todas as páginas", "Alle pagina's", "Wszystkie strony",
      "Все страницы", "Tüm sayfalar", "すべてのページ", "所有页面", "모든 페이지"}},
    {"Light or dark",
     {"Hell oder dunkel", "Clair ou sombre", "Claro u oscuro", "Chiaro o scuro", "Claro ou escuro", "Licht of donker", "Jasny lub ciemny",
      "Светлое или тёмное", "Açık veya koyu", "ライトまたはダーク", "浅色或深色", "라이트 또는 다크"}},
    {"Motion",
     {"Bewegung", "Animations", "Movimiento", "Movimento", "Movimento", "Beweging", "Animacje", "Анимация", "Hareket", "アニメーション",
      "动态效果", "애니메이션"}},
    {"Full", {"Voll", "Complètes", "Completo", "Completo", "Completo", "Volledig", "Pełne", "Полная", "Tam", "標準", "完整", "전체"}},
    {"Reduced",
     {"Reduziert", "Réduites", "Reducido", "Ridotto", "Reduzido", "Verminderd", "Ograniczone", "Упрощённая", "Azaltılmış", "控えめ", "减弱",
      "줄임"}},
    {"Contrast",
     {"Kontrast", "Contraste", "Contraste", "Contrasto", "Contraste", "Contrast", "Kontrast", "Контраст", "Kontrast", "コントラスト",
      "对比度", "대비"}},
    {"Normal", {"Normal", "Normal", "Normal", "Normale", "Normal", "Normaal", "Normalny", "Обычный", "Normal", "標準", "标准", "보통"}},
    {"High", {"Hoch", "Élevé", "Alto", "Alto", "Alto", "Hoog", "Wysoki", "Высокий", "Yüksek", "高", "高", "높음"}},
    {"Wheel clicks",
     {"Klicktöne", "Clic des molettes", "Clic del selector", "Clic dei selettori", "Clique do seletor", "Klikgeluid", "Klikanie pokręteł",
      "Щелчки колёсиков", "Tekerlek sesi", "ホイールのクリック音", "滚轮音效", "휠 클릭 소리"}},
    {"On", {"Ein", "Activé", "Activado", "Sì", "Ativado", "Aan", "Wł.", "Вкл.", "Açık", "オン", "开", "켬"}},
    {"Off", {"Aus", "Désactivé", "Desactivado", "No", "Desativado", "Uit", "Wył.", "Выкл.", "Kapalı", "オフ", "关", "끔"}},
    {"Language", {"Sprache", "Langue", "Idioma", "Lingua", "Idioma", "Taal", "Język", "Язык", "Dil", "言語", "语言", "언어"}},

    // Files.
    {"Open", {"Öffnen", "Ouvrir", "Abrir", "Apri", "Abrir", "Openen", "Otwórz", "Открыть", "Aç", "開く", "打开", "열기"}},
    {"Save",
     {"Speichern", "Enregistrer", "Guardar", "Salva", "Salvar", "Opslaan", "Zapisz", "Сохранить", "Kaydet", "保存", "保存", "저장"}},
    {"Opened:",
     {"Geöffnet:", "Ouvert\u00A0:", "Abierto:", "Aperto:", "Aberto:", "Geopend:", "Otwarto:", "Открыто:", "Açıldı:", "開きました:",
      "已打开：", "열림:"}},
    {"Saved:",
     {"Gespeichert:", "Enregistré\u00A0:", "Guardado:", "Salvato:", "Salvo:", "Opgeslagen:", "Zapisano:", "Сохранено:", "Kaydedildi:",
      "保存しました:", "已保存：", "저장됨:"}},
    {"The file could not be read:",
     {"Die Datei konnte nicht gelesen werden:", "Impossible de lire le fichier\u00A0:", "No se pudo leer el archivo:",
      "Impossibile leggere il file:", "Não foi possível ler o arquivo:", "Het bestand kon niet worden gelezen:",
      "Nie udało się odczytać pliku:", "Не удалось прочитать файл:", "Dosya okunamadı:", "ファイルを読み込めませんでした:",
      "无法读取文件：", "파일을 읽을 수 없습니다:"}},
    {"The file could not be written:",
     {"Die Datei konnte nicht geschrieben werden:", "Impossible d’écrire le fichier\u00A0:", "No se pudo escribir el archivo:",
      "Impossibile scrivere il file:", "Não foi possível gravar o arquivo:", "Het bestand kon niet worden geschreven:",
      "Nie udało się zapisać pliku:", "Не удалось записать файл:", "Dosya yazılamadı:", "ファイルを書き込めませんでした:", "无法写入文件：",
      "파일을 쓸 수 없습니다:"}},
    {"The file has no number for:",
     {"In der Datei fehlt die Zahl für:", "Le fichier ne contient aucun nombre pour\u00A0:", "El archivo no contiene ningún número para:",
      "Nel file manca il numero per:", "O arquivo não contém um número para:", "Het bestand bevat geen getal voor:",
      "W pliku brakuje liczby:", "В файле нет числа:", "Dosyada şunun için sayı yok:", "ファイルに次の数値がありません:",
      "文件中缺少以下数值：", "파일에 다음 숫자가 없습니다:"}},
    {"A number in the file is out of range:",
     {"Eine Zahl in der Datei liegt außerhalb des gültigen Bereichs:", "Un nombre du fichier est hors limites\u00A0:",
      "Un número del archivo está fuera de rango:", "Un numero nel file è fuori dai limiti:",
      "Um número no arquivo está fora do intervalo:", "Een getal in het bestand valt buiten het bereik:",
      "Liczba w pliku jest poza zakresem:", "Число в файле вне допустимого диапазона:", "Dosyadaki bir sayı aralık dışında:",
      "ファイル内の数値が範囲外です:", "文件中的数值超出范围：", "파일의 숫자가 범위를 벗어났습니다:"}},
    {"The file names no weather that this application knows.",
     {"Die Datei nennt kein Wetter, das diese App kennt.", "Le fichier n’indique aucune météo connue de cette application.",
      "El archivo no indica ninguna meteorología que esta aplicación conozca.", "Il file non indica un meteo noto a questa applicazione.",
      "O arquivo não indica um clima conhecido por este aplicativo.", "Het bestand noemt geen weer dat deze app kent.",
      "Plik nie podaje pogody znanej tej aplikacji.", "В файле не указана погода, известная этому приложению.",
      "Dosyada bu uygulamanın tanıdığı bir hava durumu yok.", "ファイルに、このアプリで使える天気がありません。",
      "文件中没有此应用支持的天气。", "파일에 이 앱이 지원하는 날씨가 없습니다."}},
    {"This file is damaged, or no workout.",
     {"Diese Datei ist beschädigt oder kein Training.", "Ce fichier est endommagé ou n’est pas un entraînement.",
      "Este archivo está dañado o no es un entrenamiento.", "Questo file è danneggiato o non è un allenamento.",
      "Este arquivo está danificado ou não é um treino.", "Dit bestand is beschadigd of geen training.",
      "Ten plik jest uszkodzony lub nie zawiera treningu.", "Файл повреждён или не содержит тренировки.",
      "Bu dosya hasarlı veya bir antrenman değil.", "このファイルは破損しているか、ワークアウトではありません。",
      "此文件已损坏，或不是训练文件。", "이 파일은 손상되었거나 운동 파일이 아닙니다."}},
    {"This file is damaged.",
     {"Diese Datei ist beschädigt.", "Ce fichier est endommagé.", "Este archivo está dañado.", "Questo file è danneggiato.",
      "Este arquivo está danificado.", "Dit bestand is beschadigd.", "Ten plik jest uszkodzony.", "Файл повреждён.", "Bu dosya hasarlı.",
      "このファイルは破損しています。", "此文件已损坏。", "이 파일은 손상되었습니다."}},
    {"This file is no workout.",
     {"Diese Datei ist kein Training.", "Ce fichier n’est pas un entraînement.", "Este archivo no es un entrenamiento.",
      "Questo file non è un allenamento.", "Este arquivo não é um treino.", "Dit bestand is geen training.",
      "Ten plik nie zawiera treningu.", "Файл не содержит тренировки.", "Bu dosya bir antrenman değil.",
      "このファイルはワークアウトではありません。", "此文件不是训练文件。", "이 파일은 운동 파일이 아닙니다."}},
    {"This workout was saved by a newer version of this application.",
     {"Dieses Training wurde mit einer neueren Version dieser App gespeichert.",
      "Cet entraînement a été enregistré par une version plus récente de cette application.",
      "Este entrenamiento se guardó con una versión más reciente de esta aplicación.",
      "Questo allenamento è stato salvato da una versione più recente di questa applicazione.",
      "Este treino foi salvo por uma versão mais recente deste aplicativo.",
      "Deze training is opgeslagen met een nieuwere versie van deze app.", "Ten trening zapisano w nowszej wersji tej aplikacji.",
      "Тренировка сохранена в более новой версии этого приложения.", "Bu antrenman, bu uygulamanın daha yeni bir sürümüyle kaydedilmiş.",
      "このワークアウトは、このアプリの新しいバージョンで保存されています。", "此训练由此应用的更新版本保存。",
      "이 운동은 이 앱의 최신 버전에서 저장되었습니다."}},

    // Weather.
    {"clear", {"klar", "dégagé", "despejado", "sereno", "céu limpo", "onbewolkt", "bezchmurnie", "ясно", "açık", "晴れ", "晴", "맑음"}},
    {"partly cloudy",
     {"teils bewölkt", "éclaircies", "algo nuboso", "parzialmente nuvoloso", "parcialmente nublado", "half bewolkt", "częściowo pochmurno",
      "переменная облачность", "parçalı bulutlu", "晴れ時々曇り", "局部多云", "구름 조금"}},
    {"cloudy",
     {"bewölkt", "nuageux", "nublado", "nuvoloso", "nublado", "bewolkt", "pochmurno", "облачно", "bulutlu", "曇り", "多云", "구름 많음"}},
    {"overcast",
     {"bedeckt", "couvert", "cubierto", "coperto", "encoberto", "betrokken", "pełne zachmurzenie", "пасмурно", "kapalı", "厚い雲", "阴",
      "흐림"}},
    {"fog", {"Nebel", "brouillard", "niebla", "nebbia", "nevoeiro", "mist", "mgła", "туман", "sis", "霧", "雾", "안개"}},
    {"drizzle",
     {"Nieselregen", "bruine", "llovizna", "pioviggine", "garoa", "motregen", "mżawka", "морось", "çisenti", "霧雨", "毛毛雨", "이슬비"}},
    {"rain", {"Regen", "pluie", "lluvia", "pioggia", "chuva", "regen", "deszcz", "дождь", "yağmur", "雨", "雨", "비"}},
    {"showers",
     {"Schauer", "averses", "chubascos", "rovesci", "pancadas de chuva", "buien", "przelotny deszcz", "ливни", "sağanak", "にわか雨",
      "阵雨", "소나기"}},
    {"thunderstorm",
     {"Gewitter", "orage", "tormenta", "temporale", "trovoada", "onweer", "burza", "гроза", "gök gürültülü", "雷雨", "雷暴", "뇌우"}},
    {"sleet",
     {"Schneeregen", "neige fondue", "aguanieve", "nevischio", "chuva com neve", "natte sneeuw", "deszcz ze śniegiem", "мокрый снег",
      "sulu kar", "みぞれ", "雨夹雪", "진눈깨비"}},
    {"snow", {"Schnee", "neige", "nieve", "neve", "neve", "sneeuw", "śnieg", "снег", "kar", "雪", "雪", "눈"}},
    {"wind", {"Wind", "vent", "viento", "vento", "vento", "wind", "wiatr", "ветер", "rüzgâr", "風", "大风", "바람"}},
};

constexpr bool isComplete(const Translations::Row& row) {
    return !row.english.empty() && std::none_of(row.texts.begin(), row.texts.end(), [](std::string_view text) { return text.empty(); });
}
static_assert(std::all_of(std::begin(table), std::end(table), isComplete), "a text for each language");

constexpr bool isOnlyOne(const Translations::Row& row) {
    return std::count_if(std::begin(table), std::end(table),
                         [&row](const Translations::Row& other) { return other.english == row.english; }) == 1;
}
static_assert(std::all_of(std::begin(table), std::end(table), isOnlyOne), "each English text once");

} // namespace

std::span<const Translations::Row> Translations::rows() { return table; }

std::string Translations::text(const std::string& english) {
    return std::string(textInLanguage(english, gx::GXLocalization::sharedLocalization()->translationLanguage()));
}

std::string_view Translations::textInLanguage(std::string_view english, std::string_view language) {
    const auto column = std::find(languages.begin(), languages.end(), language);
    const auto row =
        std::find_if(std::begin(table), std::end(table), [english](const Row& candidate) { return candidate.english == english; });
    if (column == languages.end() || row == std::end(table)) return english;
    return row->texts[static_cast<std::size_t>(column - languages.begin())];
}

} // namespace gallery
