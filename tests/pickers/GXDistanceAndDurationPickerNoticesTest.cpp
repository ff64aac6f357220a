#include <functional>

#include "DistanceAndDurationTest.h"
#include "FingerTurn.h"

using namespace gx;

// Notices

TEST_F(DistanceAndDuration, WithoutADelegateTurnsAreTakenAndNobodyIsTold) {
    TestWindow window(picker);
    turnOneRow(window, distanceWheel(), 0);
    turnOneRow(window, durationWheel(), 2);
    EXPECT_EQ(picker->distancePicker()->currentValue().doubleValue(), 6000);
    EXPECT_EQ(picker->durationPicker()->currentValue().doubleValue(), 360000);
}

TEST_F(DistanceAndDuration, NoticesThatReachItGoOnWithItselfAsTheSenderAndAComponentForEach) {
    relay();
    TestWindow window(picker);
    turnOneRow(window, durationWheel(), 2);
    turnOneRow(window, distanceWheel(), 2);
    ASSERT_EQ(notices->list.size(), 2U);
    expectTold(0, picker, 360000, 1);
    expectTold(1, picker, 5100, 0);
    EXPECT_TRUE(notices->list[1].value.isIdenticalTo(picker->distancePicker()->currentValue()));
}

TEST_F(DistanceAndDuration, OnceADelegateIsSetTheInnerPickersReportToItStraight) {
    picker->setDelegate(notices);
    EXPECT_EQ(picker->delegate().lock(), notices);
    TestWindow window(picker);
    turnOneRow(window, distanceWheel(), 0);
    turnOneRow(window, durationWheel(), 2);
    ASSERT_EQ(notices->list.size(), 2U);
    expectTold(0, picker->distancePicker(), 6000, 0);
    expectTold(1, picker->durationPicker(), 360000, 0);
}

TEST_F(DistanceAndDuration, ADelegateTakenAwayIsNotToldAndTheInnerPickersDoNotReportHereAgain) {
    picker->setDelegate(notices);
    picker->setDelegate({});
    EXPECT_FALSE(picker->delegate().lock());
    EXPECT_FALSE(picker->distancePicker()->delegate().lock());
    EXPECT_FALSE(picker->durationPicker()->delegate().lock());
    TestWindow window(picker);
    turnOneRow(window, distanceWheel(), 0);
    turnOneRow(window, durationWheel(), 2);
    EXPECT_TRUE(notices->list.empty());
    EXPECT_EQ(picker->distancePicker()->currentValue().doubleValue(), 6000);
}

TEST_F(DistanceAndDuration, AVanishedDelegateIsSkippedAndNotHeld) {
    relay();
    const WeakRef<PickerNotices> weak = notices;
    notices = nullptr;
    EXPECT_TRUE(weak.expired());
    distanceWheel()->turnToRow_inComponent(7, 0);
    EXPECT_EQ(picker->distancePicker()->currentValue().doubleValue(), 7000);
}

TEST_F(DistanceAndDuration, TheComponentThatASenderNamesDoesNotCount) {
    relay();
    picker->pickerView_didChangeCurrentValue_forComponent(picker->distancePicker(), boxed(3), 7);
    picker->pickerView_didChangeCurrentValue_forComponent(picker->durationPicker(), boxed(4), 0);
    ASSERT_EQ(notices->list.size(), 2U);
    expectTold(0, picker, 3, 0);
    expectTold(1, picker, 4, 1);
}

TEST_F(DistanceAndDuration, OtherSendersAreIgnored) {
    relay();
    const auto stranger = create<GXDistancePickerView>(upright);
    picker->pickerView_didChangeCurrentValue_forComponent(stranger, boxed(1), 0);
    picker->pickerView_didChangeCurrentValue_forComponent(picker, boxed(1), 0);
    picker->pickerView_didChangeCurrentValue_forComponent(nullptr, boxed(1), 0);
    picker->setDistancePicker(nullptr);
    picker->setDurationPicker(nullptr);
    picker->pickerView_didChangeCurrentValue_forComponent(nullptr, boxed(1), 1);
    EXPECT_TRUE(notices->list.empty());
}

TEST_F(DistanceAndDuration, AReplacedInnerPickerIsIgnoredAndItsSuccessorHeard) {
    relay();
    const Ref<GXDistancePickerView> old = picker->distancePicker();
    const auto successor = create<GXDistancePickerView>(upright);
    picker->setDistancePicker(successor);
    EXPECT_EQ(picker->distancePicker(), successor);
    EXPECT_FALSE(successor->superview()) << "the setter stores only";
    EXPECT_FALSE(successor->delegate().lock());
    old->pickerView()->turnToRow_inComponent(9, 0);
    EXPECT_TRUE(notices->list.empty());
    successor->setIsMetric(true);
    successor->setDelegate(picker);
    successor->pickerView()->turnToRow_inComponent(8, 0);
    ASSERT_EQ(notices->list.size(), 1U);
    expectTold(0, picker, 8000, 0);
    picker->setFrame(lying);
    EXPECT_EQ(successor->frame(), CGRectMake(0, 0, 289, 200));
    EXPECT_EQ(old->frame(), CGRectMake(0, 0, 165, 216));
}

TEST_F(DistanceAndDuration, AReplacedDurationIsIgnoredToo) {
    relay();
    const Ref<GXDurationPickerView> old = picker->durationPicker();
    picker->setDurationPicker(create<GXDurationPickerView>(upright));
    old->pickerView()->turnToRow_inComponent(9, 2);
    EXPECT_TRUE(notices->list.empty());
    picker->setDelegate({});
    EXPECT_TRUE(old->delegate().lock()) << "it is no concern of this picker any more";
}

TEST_F(DistanceAndDuration, ItMayBeItsOwnDelegate) {
    picker->setDelegate(picker);
    distanceWheel()->turnToRow_inComponent(7, 0);
    EXPECT_EQ(picker->distancePicker()->currentValue().doubleValue(), 7000);
}

// Callbacks

TEST_F(DistanceAndDuration, ADelegateMayDropTheLastReferenceToItInARelayedNotice) {
    relay();
    const WeakRef<GXBasePickerView> weak = picker;
    const Ref<GXMultiValuePickerView> wheel = durationWheel();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        notices->list.clear();
        picker = nullptr;
    };
    wheel->turnToRow_inComponent(9, 2);
    EXPECT_TRUE(weak.expired());
}

TEST_F(DistanceAndDuration, ADelegateMayDropItInAFingersTurn) {
    picker->setDelegate(notices);
    const WeakRef<GXBasePickerView> weak = picker;
    TestWindow window(picker);
    notices->whenTold = [&](const PickerNotices::Notice&) {
        notices->list.clear();
        picker->removeFromSuperview();
        picker = nullptr;
    };
    const Ref<UIPickerView> wheel = distanceWheel();
    turnOneRow(window, wheel, 0);
    EXPECT_TRUE(weak.expired());
}

TEST_F(DistanceAndDuration, ADelegateMayReplaceItselfAndTheInnerPickersInARelayedNotice) {
    relay();
    const auto other = create<PickerNotices>();
    const Ref<GXMultiValuePickerView> wheel = durationWheel();
    notices->whenTold = [&](const PickerNotices::Notice&) {
        picker->setDelegate(other);
        picker->setDistancePicker(nullptr);
        picker->setDurationPicker(nullptr);
        notices = nullptr;
    };
    wheel->turnToRow_inComponent(9, 0);
    EXPECT_FALSE(notices);
    EXPECT_TRUE(other->list.empty());
}

TEST_F(DistanceAndDuration, AnInnerPickerMayTakeBothAwayWhileItIsToldSomething) {
    for (const auto& act : std::vector<std::function<void()>>{[&] { picker->setFrame(lying); }, [&] { picker->setDelegate(notices); },
                                                              [&] { picker->setIsMetric(!picker->isMetric()); }}) {
        const auto meddler = create<MeddlingPicker<GXDistancePickerView>>(upright);
        picker->setDistancePicker(meddler);
        picker->setDurationPicker(create<GXDurationPickerView>(upright));
        meddler->whenTold = [&] {
            picker->setDistancePicker(nullptr);
            picker->setDurationPicker(nullptr);
        };
        act();
        EXPECT_FALSE(picker->distancePicker());
        EXPECT_FALSE(picker->durationPicker());
    }
}

TEST_F(DistanceAndDuration, AnInnerPickerMayDropItWhileItIsToldSomething) {
    using Call = void (*)(GXBasePickerView&);
    const Call calls[] = {[](GXBasePickerView& view) { view.setFrame(lying); }, [](GXBasePickerView& view) { view.setDelegate({}); },
                          [](GXBasePickerView& view) { view.setIsMetric(true); }};
    for (const Call call : calls) {
        picker = create<GXDistanceAndDurationPicker>(upright);
        const WeakRef<GXBasePickerView> weak = picker;
        const auto meddler = create<MeddlingPicker<GXDistancePickerView>>(upright);
        picker->setDistancePicker(meddler);
        meddler->whenTold = [&] { picker = nullptr; };
        call(*picker);
        EXPECT_TRUE(weak.expired());
    }
}
