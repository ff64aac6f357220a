// A user's gestures in the gallery, recorded and played again.

#include <fstream>
#include <sstream>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAccessibleValueInterface>
#include <QFile>
#include <QShortcut>

#include "ApplicationTest.h"
#include "EventPlayer.h"
#include "EventRecorder.h"
#include "QtRecording.h"
#include "QtViewImage.h"

using namespace gallery;
using namespace gx;

namespace {

/// The gallery with a recorder between widget and window.
class RecordingTest : public ApplicationTest {
protected:
    void SetUp() override {}

    void startRecording(RecordingStart begin = {}) {
        screen = begin.makeScreen();
        widget = std::make_unique<qt::UIViewWidget>();
        widget->setClock([this] { return now; });
        widget->resize(static_cast<int>(begin.size.width), static_cast<int>(begin.size.height));
        widget->setRootView(screen);
        screen->setStyleAction([this](std::optional<UIUserInterfaceStyle> style) { widget->setUserInterfaceStyle(style); });
        begin.isDark = widget->userInterfaceStyle() == UIUserInterfaceStyle::Dark;
        text = begin.line() + "\n";
        recorder = std::make_shared<EventRecorder>(
            widget->uiWindow(), [this] { return now; }, [this](const std::string& line) { text += line + "\n"; });
        widget->setWindowInput(recorder);
        QtFiles::Dialogs dialogs = {[this](QWidget*, const QString&) { return chosenPath; }, [this](QWidget*) { return chosenPath; }};
        screen->entry()->setFiles(std::make_shared<RecordedFiles>(std::make_shared<QtFiles>(widget.get(), dialogs), recorder));
        widget->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
        finish();
    }
    /// As `settle`, with each pass of the run loop recorded.
    void finish() {
        for (int i = 0; i < 20 * 60 && (widget->isFrameDue() || NSRunLoop::mainRunLoop()->hasWork()); ++i) {
            if (NSRunLoop::mainRunLoop()->hasWork()) recorder->runPass();
            step(1.0 / 60);
        }
        EXPECT_FALSE(widget->isFrameDue());
    }
    void clickAt(QPoint point) {
        QTest::mouseMove(widget.get(), point);
        QTest::mouseClick(widget.get(), Qt::LeftButton, {}, point);
        finish();
    }
    void key(Qt::Key code) {
        QTest::keyClick(widget.get(), code);
        finish();
    }
    /// What the window shows, without anything that it may share with another window.
    static std::pair<std::string, QImage> shownBy(const MainScreen& shown, const Ref<UIWindow>& window) {
        return {valuesOfScreen(shown), qt::imageOfWindow(window, 1)};
    }
    void expectSameReplay() {
        const auto recorded = shownBy(*screen, widget->uiWindow());
        screen->setStyleAction(nullptr);
        widget = nullptr;
        screen = nullptr;
        // As in another run of the program.
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
        std::string error;
        const auto recording = Recording::recordingOfText(text, error);
        ASSERT_TRUE(recording) << error;
        const auto player = EventPlayer::playerOfStart(recording->start);
        ASSERT_TRUE(player);
        player->play(*recording, nullptr);
        const auto replayed = shownBy(*player->screen(), player->window());
        EXPECT_EQ(replayed.first, recorded.first);
        EXPECT_FALSE(recorded.second.isNull());
        EXPECT_EQ(replayed.second, recorded.second) << "to the bit";
    }

    /// The first element below one whose name begins so.
    static QAccessibleInterface* elementNamed(QAccessibleInterface* whole, const QString& name) {
        for (int i = 0; i < whole->childCount(); ++i) {
            QAccessibleInterface* const child = whole->child(i);
            if (child->text(QAccessible::Name).startsWith(name) && child->actionInterface()) return child;
            if (QAccessibleInterface* const below = elementNamed(child, name)) return below;
        }
        return nullptr;
    }

    std::string text;
    std::shared_ptr<EventRecorder> recorder;
};

} // namespace

TEST_F(RecordingTest, MouseKeysAndWheelArePlayedToTheSameValuesAndPicture) {
    startRecording();
    const Workout before = entry()->workout();
    entry()->table()->layoutIfNeeded();
    const auto speed = entry()->table()->cellForRowAtIndexPath(entry()->pathOfMeasurement(indexOf("Average speed")));
    ASSERT_TRUE(speed);
    clickAt(middleOf(speed));
    const auto wheels = openWheels();
    ASSERT_FALSE(wheels.empty());
    const QPoint column = middleOf(wheels[0]->viewForRow_forComponent(wheels[0]->selectedRowInComponent(0), 0));
    // A fling, caught by notches of the mouse wheel while it moves.
    QTest::mousePress(widget.get(), Qt::LeftButton, {}, column);
    for (int i = 1; i <= 5; ++i) {
        step(0.011);
        QTest::mouseMove(widget.get(), column + QPoint(0, -9 * i));
    }
    QTest::mouseRelease(widget.get(), Qt::LeftButton, {}, column + QPoint(0, -45));
    for (int i = 0; i < 7; ++i) step(0.013);
    QWheelEvent notch(column, widget->mapToGlobal(column), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget.get(), &notch);
    finish();
    QTest::keyClick(widget.get(), Qt::Key_Right);
    QTest::keyClicks(widget.get(), "7");
    finish();
    QTest::mouseMove(widget.get(), column);
    step(0.02);
    EXPECT_NE(entry()->workout(), before);
    expectSameReplay();
}

TEST_F(RecordingTest, ActionsOfAScreenReaderArePlayedToTheSameValuesAndPicture) {
    startRecording();
    const Workout before = entry()->workout();
    QAccessibleInterface* const whole = QAccessible::queryAccessibleInterface(widget.get());
    ASSERT_TRUE(whole);
    // As a screen reader does, it looks for changes after each step.
    auto act = [&](QAccessibleInterface* on, const QString& action) {
        ASSERT_TRUE(on && on->actionInterface());
        on->actionInterface()->doAction(action);
        QCoreApplication::processEvents(); // An activation comes after the call.
        finish();
    };
    QAccessibleInterface* const weight = elementNamed(whole, "Weight,");
    act(weight, QAccessibleActionInterface::setFocusAction());
    act(weight, QAccessibleActionInterface::pressAction());
    act(elementNamed(whole, "Average speed,"), QAccessibleActionInterface::pressAction());
    ASSERT_FALSE(openWheels().empty());
    QAccessibleInterface* const column = elementNamed(whole, "Speed");
    ASSERT_TRUE(column && column->valueInterface());
    column->valueInterface()->setCurrentValue(17);
    for (int i = 0; i < 3; ++i) step(0.013);
    // While it moves.
    column->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    finish();
    EXPECT_EQ(column->valueInterface()->currentValue().toDouble(), 18);
    act(column, QAccessibleActionInterface::setFocusAction());
    act(column, QAccessibleActionInterface::decreaseAction());
    EXPECT_NE(entry()->workout(), before);
    act(elementNamed(whole, "Settings"), QAccessibleActionInterface::pressAction());
    EXPECT_EQ(screen->pageIndex(), MainScreen::settingsPage);
    act(elementNamed(whole, "Dark"), QAccessibleActionInterface::toggleAction());
    EXPECT_EQ(widget->userInterfaceStyle(), UIUserInterfaceStyle::Dark);
    act(elementNamed(whole, "Add workout"), QAccessibleActionInterface::pressAction());
    for (const char* const action : {"setNumber", "increment", "decrement", "focus", "activate"}) {
        EXPECT_NE(text.find("\"action\":\"" + std::string(action) + "\""), std::string::npos) << action;
    }
    EXPECT_EQ(text.find("\"element\":[]"), std::string::npos);
    expectSameReplay();
}

TEST_F(RecordingTest, SettingsResizesAndPagesArePlayedToo) {
    RecordingStart begin;
    begin.locale = "fr_CH";
    begin.decimalSeparator = ",";
    begin.textScale = 1.3;
    begin.page = "Settings";
    startRecording(begin);
    clickAt(middleOf(screen->settingsControls()->control("Look"), screen->settingsControls()->control("Look")->frameOfSegment(2)));
    clickAt(middleOf(screen->settingsControls()->control("Units"), screen->settingsControls()->control("Units")->frameOfSegment(1)));
    widget->resize(500, 700);
    QApplication::processEvents();
    finish();
    clickAt(middleOf(screen->menuButton()));
    clickAt(middleOf(screen->sidebar()->rows()[*screen->indexOfPage("Weight")]));
    EXPECT_EQ(screen->page()->name(), "Weight");
    key(Qt::Key_Tab);
    key(Qt::Key_Tab);
    key(Qt::Key_Down);
    EXPECT_NE(text.find(R"("event":"size")"), std::string::npos);
    expectSameReplay();
}

TEST_F(RecordingTest, FilesOfTheUserArePlayedFromTheRecording) {
    startRecording();
    clickAt(middleOf(entry()->saveButton()));
    ASSERT_TRUE(QFile::exists(chosenPath));
    clickAt(middleOf(entry()->openButton()));
    QFile::remove(chosenPath);
    clickAt(middleOf(entry()->openButton()));
    EXPECT_NE(text.find(R"("event":"file")"), std::string::npos);
    expectSameReplay();
    EXPECT_FALSE(QFile::exists(chosenPath)) << "a replay writes no file of the user";
}

TEST_F(RecordingTest, AFileIsReplayedWithPicturesOfItsMarks) {
    startRecording();
    recorder->markPicture();
    const QString path = folder.filePath("a.jsonl");
    std::ofstream(path.toStdString()) << text;
    screen->setStyleAction(nullptr);
    const std::string pictures = folder.filePath("pictures").toStdString();
    const ReplayResult result = replayFile(path.toStdString(), pictures);
    EXPECT_EQ(result.problem, std::nullopt);
    EXPECT_NE(result.values.find("\"page\": \"Add workout\""), std::string::npos);
    QImage end(QString::fromStdString(pictures + "/end.png"));
    EXPECT_EQ(end.size(), QSize(900, 640));
    EXPECT_EQ(QImage(QString::fromStdString(pictures + "/mark-1.png")), end);
}

TEST_F(RecordingTest, ADamagedFilePlaysNothingAndWritesNothing) {
    startRecording();
    const std::string path = folder.filePath("b.jsonl").toStdString();
    std::ofstream(path) << text << "{\"time\":1,\"event\":\"pic";
    const auto lines = std::count(text.begin(), text.end(), '\n');
    const ReplayResult result = replayFile(path, folder.filePath("none").toStdString());
    EXPECT_EQ(result.problem, path + ", line " + std::to_string(lines + 1) + ": this is no JSON; the line may be cut off.");
    EXPECT_EQ(result.values, "");
    EXPECT_FALSE(QFile::exists(folder.filePath("none")));
    const std::string absent = folder.filePath("absent").toStdString();
    const std::string directory = folder.path().toStdString();
    for (const std::string& unreadable : {absent, directory}) {
        EXPECT_EQ(replayFile(unreadable, std::nullopt).problem, "The recording " + unreadable + " cannot be read.");
    }
    const std::string empty = folder.filePath("empty").toStdString();
    std::ofstream(empty).flush();
    EXPECT_EQ(replayFile(empty, std::nullopt).problem, empty + ", line 1: this is no JSON; the line may be cut off.");
}

TEST_F(RecordingTest, AWidgetRecordsItselfIntoAFile) {
    const RecordingStart begin;
    screen = begin.makeScreen();
    widget = std::make_unique<qt::UIViewWidget>();
    widget->setClock([this] { return now; });
    widget->resize(900, 640);
    widget->setRootView(screen);
    std::string error;
    for (const QString& unwritable : {folder.filePath("no/folder"), folder.path(), QStringLiteral("/dev/full")}) {
        error.clear();
        EXPECT_FALSE(QtRecording::begin(unwritable.toStdString(), *widget, begin, error));
        EXPECT_EQ(error, "The recording " + unwritable.toStdString() + " cannot be written.");
    }
    const std::string path = folder.filePath("c.jsonl").toStdString();
    auto recording = QtRecording::begin(path, *widget, begin, error);
    ASSERT_TRUE(recording);
    widget->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(widget.get()));
    settle();
    QTest::mouseMove(widget.get(), {500, 150});
    auto* const mark = widget->findChild<QShortcut*>();
    ASSERT_TRUE(mark);
    EXPECT_EQ(mark->key(), QKeySequence(Qt::Key_F12));
    emit mark->activated(); // Without a window system no window is active, and no shortcut.
    EXPECT_TRUE(recording->isComplete());
    recording = nullptr;
    QTest::mouseMove(widget.get(), {500, 160});
    std::ostringstream written;
    written << std::ifstream(path).rdbuf();
    const auto read = Recording::recordingOfText(written.str(), error);
    ASSERT_TRUE(read) << error;
    EXPECT_EQ(read->start.size, CGSizeMake(640, 480)) << "Qt's own, until the window is shown";
    const auto count = [&read](RecordedEvent::Kind kind) {
        return std::count_if(read->events.begin(), read->events.end(), [kind](const RecordedEvent& event) { return event.kind == kind; });
    };
    EXPECT_GE(count(RecordedEvent::Kind::PointerMoved), 1);
    EXPECT_EQ(written.str().find("160.0"), std::string::npos) << "not after its end";
    EXPECT_EQ(count(RecordedEvent::Kind::Size), 1);
    EXPECT_EQ(count(RecordedEvent::Kind::Picture), 1);
    EXPECT_GT(count(RecordedEvent::Kind::Tick), 0);
    EXPECT_GT(count(RecordedEvent::Kind::Pass), 0);
}

TEST_F(RecordingTest, ASessionOfTheKeyboardEndsWithTheSameValuesAsWhenItWasRecorded) {
    // Opens the average speed, types 14, goes to the tenths and two rows up.
    const ReplayResult result = replayFile(GX_RECORDINGS "/average-speed.jsonl", std::nullopt);
    EXPECT_EQ(result.problem, std::nullopt);
    EXPECT_NE(result.values.find("\"Average speed, 14.3 km/h\""), std::string::npos) << result.values;
    EXPECT_NE(result.values.find("\"speed\": 3.9722222"), std::string::npos);
    EXPECT_NE(result.values.find("\"calories\": 420"), std::string::npos) << "all others stay";
}
