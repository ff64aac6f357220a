#include "EntryScreen.h"

#include <algorithm>

#include "EntryColumns.h"
#include "ReadingDirection.h"
#include "Translations.h"
#include "WorkoutFile.h"
#include <GXUIPickers/UIWindow.h>

using namespace gx;

namespace gallery {

bool EntryScreen::initWithFrame(CGRect frame) {
    if (!UIView::initWithFrame(frame)) return false;
    const WeakRef<EntryScreen> weak = refTo(this);
    settings_ = Settings::current();
    header_ = create<EntryHeader>(CGRectZero);
    openButton()->setAction([weak] {
        if (const auto entry = weak.lock()) entry->open();
    });
    saveButton()->setAction([weak] {
        if (const auto entry = weak.lock()) entry->save();
    });
    list_ = create<EntryList>(CGRectZero);
    addSubview(header_);
    addSubview(list_);
    setFiles(nullptr);
    showTexts();
    return true;
}

void EntryScreen::showTexts() {
    header_->showTexts();
    list_->makeRows(workout_, settings_);
    setNeedsLayout();
}

void EntryScreen::setSettings(const Settings& settings) {
    // Settings that only the window needs leave the rows as they are.
    Settings drawnAlike = settings;
    drawnAlike.style = settings_.style;
    drawnAlike.contrast = settings_.contrast;
    drawnAlike.reducesMotion = settings_.reducesMotion;
    drawnAlike.clicks = settings_.clicks;
    const bool isSame = drawnAlike == settings_;
    const bool isOtherLanguage = settings.language != settings_.language;
    if (!isSame) finishSpins();
    settings_ = settings;
    if (isOtherLanguage) tell("", MessageKind::Success);
    if (!isSame) showTexts();
}

void EntryScreen::setWorkout(const Workout& workout) {
    finishSpins();
    *workout_ = workout;
    list_->showWorkout();
}

// Files

void EntryScreen::setFiles(std::shared_ptr<UserFiles> files) {
    files_ = std::move(files);
    header_->setShowsButtons(files_ != nullptr);
    setNeedsLayout();
}

void EntryScreen::tell(const std::string& message, MessageKind kind) {
    header_->setMessage(message, kind);
    using Priority = UIAccessibilityAnnouncement::Priority;
    if (const Ref<UIWindow> shownIn = window())
        shownIn->announce(message, kind == MessageKind::Error ? Priority::Assertive : Priority::Polite);
    setNeedsLayout();
}

void EntryScreen::save() {
    const Ref<EntryScreen> keep = refTo(this);
    const std::shared_ptr<UserFiles> files = files_;
    if (!files) return;
    finishSpins();
    files->saveText_name(WorkoutFile::textOfWorkout(*workout_), "workout.json", [weak = WeakRef<EntryScreen>(keep)](const auto& outcome) {
        const auto entry = weak.lock();
        if (!entry) return;
        if (outcome.error.empty()) {
            entry->tell(Translations::filled("Saved: {0}", outcome.name), MessageKind::Success);
        } else {
            entry->tell(outcome.error, MessageKind::Error);
        }
    });
}

void EntryScreen::open() {
    const Ref<EntryScreen> keep = refTo(this);
    const std::shared_ptr<UserFiles> files = files_;
    if (!files) return;
    files->openText([weak = WeakRef<EntryScreen>(keep)](const auto& outcome) {
        const auto entry = weak.lock();
        if (!entry) return;
        std::string error = outcome.error;
        const auto workout = error.empty() ? WorkoutFile::workoutOfText(outcome.text, error) : std::nullopt;
        if (!workout) {
            entry->tell(outcome.name.empty() ? error : Translations::filled("{0}: {1}", outcome.name, error), MessageKind::Error);
            return;
        }
        entry->setWorkout(*workout);
        entry->tell(Translations::filled("Opened: {0}", outcome.name), MessageKind::Success);
    });
}

// Layout

void EntryScreen::setShowsTitle(bool shows) {
    header_->setShowsTitle(shows);
    setNeedsLayout();
}

void EntryScreen::setShowsPickerBeside(bool beside) {
    list_->setShowsPickerBeside(beside);
    setNeedsLayout();
}

void EntryScreen::layoutSubviews() {
    UIView::layoutSubviews();
    const CGSize size = bounds().size;
    const EntryColumns::Span room = EntryColumns::columnsForWidth(size.width, list_->showsPickerBeside()).header;
    const CGFloat top = std::min(size.height, header_->sizeThatFits({room.width, 0}).height);
    header_->setFrame(ReadingDirection::frame(CGRectMake(room.x, 0, room.width, top), size.width));
    list_->setFrame(CGRectMake(0, top, size.width, size.height - top));
}

} // namespace gallery
