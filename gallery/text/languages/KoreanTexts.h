#pragma once

#include "ApplicationText.h"

namespace gallery {

struct KoreanTexts {
    static constexpr std::string_view language = "ko";

    static constexpr ApplicationText texts[] = {
        // Pages, sections and rows.
        {"Add workout", "운동 추가"},
        {"All pickers", "모든 선택기"},
        {"Workout", "운동"},
        {"Workouts", "운동"},
        {"Best interval", "최고 인터벌"},
        {"Heart", "심장"},
        {"Conditions", "환경"},
        {"Body", "신체"},
        {"Distance and time", "거리 및 시간"},
        {"Distance", "거리"},
        {"Duration", "소요 시간"},
        {"Average speed", "평균 속도"},
        {"Speed", "속도"},
        {"Pace", "페이스"},
        {"Calories", "칼로리"},
        {"Heart rate", "심박수"},
        {"Resting pulse", "안정 시 심박수"},
        {"Beats per minute", "분당 심박수"},
        {"Weather", "날씨"},
        {"Temperature", "온도"},
        {"Water temperature", "수온"},
        {"Weight", "체중"},
        {"Height", "키"},
        {"Choose a row to change its value.", "행을 선택하면 값을 바꿀 수 있습니다."},
        // Settings and their choices.
        {"Settings", "설정"},
        {"Units", "단위"},
        {"Metric", "미터법"},
        {"Imperial", "야드파운드법"},
        {"Kilograms", "킬로그램"},
        {"Pounds", "파운드"},
        {"Stones", "스톤"},
        {"Text size", "글자 크기"},
        {"Look", "화면 모드"},
        {"System", "시스템"},
        {"Light", "라이트"},
        {"Dark", "다크"},
        {"Decimal separator", "소수점 기호"},
        {"Automatic", "자동"},
        {"All pages", "모든 페이지"},
        {"Light or dark", "라이트 또는 다크"},
        {"Motion", "애니메이션"},
        {"Full", "전체"},
        {"Reduced", "줄임"},
        {"Contrast", "대비"},
        {"Normal", "보통"},
        {"High", "높음"},
        {"Wheel clicks", "휠 클릭 소리"},
        {"On", "켬"},
        {"Off", "끔"},
        {"Language", "언어"},
        // Files.
        {"Open", "열기"},
        {"Save", "저장"},
        {"Opened:", "열림:"},
        {"Saved:", "저장됨:"},
        {"The file could not be read:", "파일을 읽을 수 없습니다:"},
        {"The file could not be written:", "파일을 쓸 수 없습니다:"},
        {"The file has no number for:", "파일에 다음 숫자가 없습니다:"},
        {"A number in the file is out of range:", "파일의 숫자가 범위를 벗어났습니다:"},
        {"The file names no weather that this application knows.", "파일에 이 앱이 지원하는 날씨가 없습니다."},
        {"This file is damaged, or no workout.", "이 파일은 손상되었거나 운동 파일이 아닙니다."},
        {"This file is damaged.", "이 파일은 손상되었습니다."},
        {"This file is no workout.", "이 파일은 운동 파일이 아닙니다."},
        {"This workout was saved by a newer version of this application.", "이 운동은 이 앱의 최신 버전에서 저장되었습니다."},
        // Weather.
        {"clear", "맑음"},
        {"partly cloudy", "구름 조금"},
        {"cloudy", "구름 많음"},
        {"overcast", "흐림"},
        {"fog", "안개"},
        {"drizzle", "이슬비"},
        {"rain", "비"},
        {"showers", "소나기"},
        {"thunderstorm", "뇌우"},
        {"sleet", "진눈깨비"},
        {"snow", "눈"},
        {"wind", "바람"},
    };
};

} // namespace gallery
