// Large text, contrast, motion and reading direction on the screens of the gallery.

#include "GalleryTest.h"
#include "MeasurementCell.h"
#include "ProportionalTextEngine.h"

using namespace gallery;
using namespace gx;

namespace {

class ScreenAccessibility : public GalleryTest {
protected:
    void choose(const Settings& settings) {
        screen->setSettings(settings);
        settle();
    }
    /// No visible title is cut, and the labels stand within the selection indicator.
    void expectWholeTitles(const Ref<UIPickerView>& wheel) {
        for (NSInteger component = 0; component < wheel->numberOfComponents(); ++component) {
            const NSInteger selected = wheel->selectedRowInComponent(component);
            for (NSInteger row = selected - 2; row <= selected + 2; ++row) {
                const auto label = std::dynamic_pointer_cast<UILabel>(wheel->viewForRow_forComponent(row, component));
                if (!label || !label->showsSomething()) continue;
                EXPECT_LE(label->sizeThatFits({}).width, label->bounds().size.width + 0.01) << *label->text() << " in column " << component;
                EXPECT_LE(label->sizeThatFits({}).height, label->bounds().size.height) << *label->text();
            }
        }
        const auto labelled = std::dynamic_pointer_cast<GXMultiValuePickerView>(wheel);
        if (!labelled) return;
        for (const Ref<UILabel>& label : {labelled->leftDescLabel(), labelled->rightDescLabel()}) {
            if (!label->showsSomething()) continue;
            EXPECT_GE(CGRectGetMinX(label->frame()), 8) << *label->text();
            EXPECT_LE(CGRectGetMaxX(label->frame()), wheel->bounds().size.width - 8) << *label->text();
        }
    }
    static void collectWheels(const Ref<UIView>& view, std::vector<Ref<UIPickerView>>& wheels) {
        if (view->isHidden()) return;
        if (const auto wheel = std::dynamic_pointer_cast<UIPickerView>(view)) return wheels.push_back(wheel);
        for (const Ref<UIView>& below : view->subviews()) collectWheels(below, wheels);
    }
};

} // namespace

TEST_F(ScreenAccessibility, NoTitleIsCutAtAnyTextSizeOnAnyPhone) {
    UITextEngine::setShared(create<ProportionalTextEngine>());
    for (const CGFloat width : {390.0, 320.0}) {
        for (const double scale : {0.8, 1.0, 1.3, 2.0, 3.0}) {
            open(width, 844);
            Settings settings = screen->settings();
            settings.textScale = scale;
            choose(settings);
            for (std::size_t page = MainScreen::firstPickerPage; page < screen->pageNames().size(); ++page) {
                SCOPED_TRACE(screen->pageNames()[page] + " at " + std::to_string(scale) + " in " + std::to_string(width));
                screen->showPage(page);
                settle();
                expectWholeTitles(screen->page()->demo().wheel);
            }
            screen->showPage(MainScreen::entryPage);
            const auto& entry = screen->entry();
            for (std::size_t i = 0; i < entry->measurementCount(); ++i) {
                SCOPED_TRACE(entry->measurement(i)->name() + " at " + std::to_string(scale) + " in " + std::to_string(width));
                entry->openMeasurement_animated(i, false);
                settle();
                std::vector<Ref<UIPickerView>> wheels;
                collectWheels(entry, wheels);
                EXPECT_FALSE(wheels.empty());
                for (const Ref<UIPickerView>& wheel : wheels) expectWholeTitles(wheel);
            }
        }
    }
}

TEST_F(ScreenAccessibility, AnOpenPickerShowsThreeWholeRowsAlsoOfTheLargestText) {
    for (const CGSize size : {CGSizeMake(390, 844), CGSizeMake(320, 568)}) {
        open(size.width, size.height);
        Settings settings = screen->settings();
        settings.textScale = 3;
        choose(settings);
        const auto& entry = screen->entry();
        entry->openMeasurement_animated(0, false);
        settle();
        std::vector<Ref<UIPickerView>> wheels;
        collectWheels(entry, wheels);
        ASSERT_FALSE(wheels.empty());
        EXPECT_EQ(wheels[0]->rowSizeForComponent(0).height, 120);
        EXPECT_GE(wheels[0]->bounds().size.height, 360);
        EXPECT_LE(wheels[0]->bounds().size.height, entry->table()->bounds().size.height);
        screen->showPage(*screen->indexOfPage("Pace"));
        settle();
        EXPECT_EQ(screen->page()->demo().wheel->bounds().size.height, 360);
    }
}

TEST_F(ScreenAccessibility, ContrastAndMotionOfTheSettingsAreTheWindows) {
    show("Settings");
    EXPECT_EQ((*window)->accessibilityContrast(), UIAccessibilityContrast::Normal);
    EXPECT_FALSE((*window)->reducesMotion());
    tapSegment(screen->settingsControls()->control("Contrast"), 1);
    tapSegment(screen->settingsControls()->control("Motion"), 1);
    EXPECT_EQ(screen->settings().contrast, UIAccessibilityContrast::High);
    EXPECT_EQ((*window)->accessibilityContrast(), UIAccessibilityContrast::High);
    EXPECT_TRUE((*window)->reducesMotion());
    tapSegment(screen->settingsControls()->control("Contrast"), 0);
    EXPECT_EQ((*window)->accessibilityContrast(), UIAccessibilityContrast::Normal);

    // Another window that gets the screen follows them.
    tapSegment(screen->settingsControls()->control("Contrast"), 1);
    const auto other = create<UIWindow>(CGRectMake(0, 0, 390, 844));
    other->addSubview(screen);
    EXPECT_EQ(other->accessibilityContrast(), UIAccessibilityContrast::High);
    EXPECT_TRUE(other->reducesMotion());
}

TEST_F(ScreenAccessibility, ANameThatHasNoRoomBesideItsValueStandsAboveIt) {
    open(390, 844);
    const auto row = std::dynamic_pointer_cast<MeasurementCell>(screen->entry()->table()->cellForRowAtIndexPath({0, 2}));
    ASSERT_TRUE(row);
    const auto frames = [&row](const std::string& name) {
        row->setName_value(name, "420 kcal");
        row->layoutIfNeeded();
        return std::make_pair(row->contentView()->subviews().at(0)->frame(), row->contentView()->subviews().at(1)->frame());
    };
    // As below, 266 points are left for the name.
    const CGFloat height = MeasurementCell::height();
    EXPECT_EQ(frames("twenty-six letters, but no").first, CGRectMake(16, 0, 266, height));
    const auto [name, value] = frames("twenty-seven letters not 26");
    EXPECT_EQ(name, CGRectMake(16, 0, 358, height / 2));
    EXPECT_EQ(value, CGRectMake(16, height / 2, 358, height / 2));
    EXPECT_LE(20, height / 2) << "a line of the null text engine";
}

TEST_F(ScreenAccessibility, RowsAreMirroredFromRightToLeft) {
    for (const bool isMirrored : {false, true}) {
        NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(isMirrored ? "ar" : "en"));
        open(390, 844);
        const auto row = std::dynamic_pointer_cast<MeasurementCell>(screen->entry()->table()->cellForRowAtIndexPath({0, 2}));
        ASSERT_TRUE(row);
        row->setName_value("Calories", "420 kcal");
        row->layoutIfNeeded();
        const Ref<UIView> name = row->contentView()->subviews().at(0);
        const Ref<UIView> value = row->contentView()->subviews().at(1);
        // 390 less 16 at either side are 358: 80 for the value, 12 between and 266 for the name.
        EXPECT_EQ(name->frame().size.width, 266);
        EXPECT_EQ(value->frame().size.width, 80);
        EXPECT_EQ(name->frame().origin.x, isMirrored ? 108 : 16);
        EXPECT_EQ(value->frame().origin.x, isMirrored ? 16 : 294);
    }
}

TEST_F(ScreenAccessibility, TheReadingDirectionStaysUntilAnotherLanguageIsChosen) {
    NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier("ar"));
    open(390, 844);
    Settings settings = screen->settings();
    settings.style = UIUserInterfaceStyle::Dark;
    choose(settings);
    EXPECT_TRUE(NSLocale::currentLocale()->isRightToLeft());
    settings.language = "de";
    choose(settings);
    EXPECT_FALSE(NSLocale::currentLocale()->isRightToLeft());
}
