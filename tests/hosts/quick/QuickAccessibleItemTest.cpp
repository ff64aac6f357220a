// The pickers of an application that links the module, as screen readers find them. Nothing tells
// the engine where the module lies.

#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <QAccessible>
#include <QFont>
#include <QImage>
#include <QPointer>
#include <QQmlApplicationEngine>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <GXUIPickers/QuickPickers.h>

namespace {

class LinkedModule : public testing::Test {
protected:
    LinkedModule() {
        gx::quick::registerPickers();
        window.resize(640, 480);
        window.show();
        window.requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    QQuickItem* made(const char* body) {
        QQmlComponent component(&engine);
        component.setData(QByteArray("import QtQuick\nimport GXUIPickers\n") + body, QUrl());
        shown.reset(qobject_cast<QQuickItem*>(component.create()));
        EXPECT_TRUE(shown) << component.errorString().toStdString();
        if (!shown) return nullptr;
        shown->setParentItem(window.contentItem());
        window.grabWindow();
        return shown.get();
    }
    static QAccessibleInterface* column(QAccessibleInterface* picker, int index) { return picker->child(index); }
    static std::string nameOf(QAccessibleInterface* element) { return element->text(QAccessible::Name).toStdString(); }
    static std::string textOf(QAccessibleInterface* element) { return element->text(QAccessible::Value).toStdString(); }

    QQmlEngine engine;
    QQuickWindow window;
    std::unique_ptr<QQuickItem> shown;
};

constexpr const char* duration = R"(DurationPicker {
    locale: Qt.locale("en_US")
    reducedMotion: true
    type: DurationType.HoursMinutes
    value: 4500000
    Accessible.name: "Ride"
})";

/// Does something when an object emits a signal, within the emission.
class OnSignal : public QObject {
public:
    OnSignal(QObject& sender, const char* signal, std::function<void()> work) : work_(std::move(work)) {
        const int index = sender.metaObject()->indexOfSignal(signal);
        EXPECT_TRUE(QMetaObject::connect(&sender, index, this, QObject::staticMetaObject.methodCount(), Qt::DirectConnection));
    }
    int qt_metacall(QMetaObject::Call call, int index, void** arguments) override {
        if (QObject::qt_metacall(call, index, arguments) == 0) work_();
        return -1;
    }

private:
    std::function<void()> work_;
};

} // namespace

TEST_F(LinkedModule, ACountOfRowsMayBeAnyNumberOfCpp) {
    const QSignalSpy warnings(&engine, &QQmlEngine::warnings);
    QQuickItem* const wheel = made("WheelPicker {}");
    const QVariantList counts = {qint16{2}, quint16{3}, 4, 5U, qint64{6}, quint64{7}, 8.0F, 9.0};
    EXPECT_TRUE(wheel->setProperty("columns", counts));
    EXPECT_TRUE(wheel->setProperty("currentIndexes", QVariant::fromValue(QList<double>(8, 100))));
    EXPECT_EQ(wheel->property("currentIndexes").value<QList<double>>(), (QList<double>{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(warnings.count(), 0);
    EXPECT_TRUE(wheel->setProperty("columns", QVariantList{true}));
    EXPECT_EQ(warnings.count(), 1) << "no number";
}

TEST_F(LinkedModule, APickerIsAGroupOfItsColumns) {
    QAccessibleInterface* const picker = QAccessible::queryAccessibleInterface(made(duration));
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(picker->role(), QAccessible::Grouping);
    EXPECT_EQ(nameOf(picker), "Ride");
    ASSERT_EQ(picker->childCount(), 2);
    QAccessibleInterface* const hours = column(picker, 0);
    EXPECT_EQ(hours->role(), QAccessible::SpinBox);
    EXPECT_EQ(nameOf(hours), "Ride, hours");
    EXPECT_EQ(textOf(hours), "1 hour 15 minutes");
    EXPECT_TRUE(hours->state().focusable);
    EXPECT_FALSE(hours->state().disabled);
    EXPECT_EQ(hours->parent(), picker);
    EXPECT_EQ(picker->indexOfChild(hours), 0);
    EXPECT_TRUE(picker->rect().contains(hours->rect()));
    QAccessibleValueInterface* const value = column(picker, 1)->valueInterface();
    ASSERT_NE(value, nullptr);
    EXPECT_EQ(value->currentValue().toDouble(), 15);
    EXPECT_EQ(value->minimumValue().toDouble(), 0);
    EXPECT_EQ(value->maximumValue().toDouble(), 59);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 1);
}

TEST_F(LinkedModule, ElementsAreInTheLanguageOfTheirPicker) {
    QQuickItem* const row = made(R"(Row {
        DurationPicker { locale: Qt.locale("de_DE"); width: 200; type: DurationType.HoursMinutes; value: 4500000 }
        DurationPicker { locale: Qt.locale("fr_FR"); width: 200; type: DurationType.HoursMinutes; value: 4500000 }
    })");
    QAccessibleInterface* const german = column(QAccessible::queryAccessibleInterface(row->childItems().at(0)), 0);
    QAccessibleInterface* const french = column(QAccessible::queryAccessibleInterface(row->childItems().at(1)), 0);
    EXPECT_EQ(nameOf(german), "Dauer, Stunden");
    EXPECT_EQ(nameOf(french), "Durée, heures");
    EXPECT_EQ(textOf(german), "1 Stunde 15 Minuten");
    EXPECT_EQ(textOf(french), "1 heure 15 minutes");
    EXPECT_EQ(german->textInterface()->text(0, -1).toStdString(), "1 Stunde 15 Minuten");
}

TEST_F(LinkedModule, AColumnIsSetAndSteppedAsByTheUser) {
    QQuickItem* const item = made(duration);
    QSignalSpy moved(item, SIGNAL(moved()));
    QAccessibleInterface* const minutes = column(QAccessible::queryAccessibleInterface(item), 1);
    minutes->valueInterface()->setCurrentValue(40);
    window.grabWindow();
    EXPECT_EQ(item->property("value").toDouble(), 6000000);
    EXPECT_EQ(textOf(minutes), "1 hour 40 minutes");
    EXPECT_EQ(moved.count(), 1);
    minutes->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    window.grabWindow();
    EXPECT_EQ(item->property("value").toDouble(), 6060000);
    EXPECT_EQ(moved.count(), 2);
}

TEST_F(LinkedModule, AColumnTakesTheFocus) {
    QQuickItem* const item = made(duration);
    QAccessibleInterface* const picker = QAccessible::queryAccessibleInterface(item);
    QAccessibleInterface* const minutes = column(picker, 1);
    EXPECT_EQ(picker->focusChild(), nullptr);
    minutes->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(item->hasActiveFocus());
    EXPECT_EQ(picker->focusChild(), minutes);
    EXPECT_TRUE(minutes->state().focused);
    EXPECT_FALSE(picker->state().focused);
}

TEST_F(LinkedModule, ADisabledPickerTakesNothing) {
    QQuickItem* const item = made(duration);
    QAccessibleInterface* const minutes = column(QAccessible::queryAccessibleInterface(item), 1);
    item->setEnabled(false);
    EXPECT_TRUE(minutes->state().disabled);
    minutes->valueInterface()->setCurrentValue(40);
    window.grabWindow();
    EXPECT_EQ(item->property("value").toDouble(), 4500000);
}

TEST_F(LinkedModule, ANameMayChange) {
    QQuickItem* const item = made(R"(DurationPicker {
        property string title: "Ride"
        locale: Qt.locale("en_US")
        type: DurationType.HoursMinutes
        Accessible.name: title
    })");
    QAccessibleInterface* const picker = QAccessible::queryAccessibleInterface(item);
    EXPECT_EQ(nameOf(column(picker, 0)), "Ride, hours");
    item->setProperty("title", "Walk");
    EXPECT_EQ(nameOf(picker), "Walk");
    EXPECT_EQ(nameOf(column(picker, 0)), "Walk, hours");
    item->setProperty("title", "");
    EXPECT_EQ(nameOf(picker), "");
    EXPECT_EQ(nameOf(column(picker, 0)), "Duration, hours");
}

TEST_F(LinkedModule, ElementsOfAPickerThatIsGoneAreInvalid) {
    const QAccessible::Id identifier = QAccessible::uniqueId(column(QAccessible::queryAccessibleInterface(made(duration)), 0));
    shown.reset();
    const QAccessibleInterface* const left = QAccessible::accessibleInterface(identifier);
    EXPECT_TRUE(left == nullptr || !left->isValid());
}

// The next two fail where memory is checked.

TEST_F(LinkedModule, AHandlerOfItsTextMayDropTheContentThatGetsIcons) {
    QQuickItem* const control = made("IconPicker {}");
    QPointer<QQuickItem> content(control->property("contentItem").value<QQuickItem*>());
    const QTemporaryDir folder;
    QImage picture(24, 24, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(folder.filePath("sunny.png")));
    content->setProperty("iconImages", QStringList{QUrl::fromLocalFile(folder.filePath("sunny.png")).toString()});
    int count = 0;
    const OnSignal dropping(*content, "textChanged()", [&] {
        ++count;
        delete content;
    });
    content->setProperty("iconLabels", QStringList{QStringLiteral("Sunny")});
    EXPECT_EQ(count, 1);
    EXPECT_FALSE(content);
}

TEST_F(LinkedModule, AHandlerOfAValueMayDropTheContentWhileItsFontChanges) {
    QQuickItem* const control = made(R"(DurationPicker {
        locale: Qt.locale("en_US")
        type: DurationType.HoursMinutes
        value: 4500000
    })");
    QPointer<QQuickItem> content(control->property("contentItem").value<QQuickItem*>());
    column(QAccessible::queryAccessibleInterface(control), 1)->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    int count = 0;
    const OnSignal dropping(*content, "valueChanged()", [&] {
        ++count;
        delete content;
    });
    QFont larger = control->property("font").value<QFont>();
    larger.setPixelSize(30);
    control->setProperty("font", larger); // The wheel still spins.
    EXPECT_EQ(count, 1);
    EXPECT_FALSE(content);
}

// Its controls change their looks while they are taken down.
TEST(LinkedExample, IsTakenDownWithItsEngine) {
    gx::quick::registerPickers();
    const auto engine = std::make_unique<QQmlApplicationEngine>();
    engine->load(QUrl::fromLocalFile(QStringLiteral(GX_EXAMPLE_FOLDER "/AddWorkout.qml")));
    ASSERT_EQ(engine->rootObjects().size(), 1);
    auto* const window = qobject_cast<QQuickWindow*>(engine->rootObjects().constFirst());
    ASSERT_NE(window, nullptr);
    EXPECT_FALSE(window->grabWindow().isNull());
}
