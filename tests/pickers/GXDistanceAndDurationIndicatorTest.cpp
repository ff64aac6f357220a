#include "DistanceAndDurationTest.h"
#include "RecordingCanvas.h"

using namespace gx;

// One selection indicator spans the wheels of both inner pickers, whatever becomes of these.

namespace {

using Fills = std::vector<std::string>;

// 8 points from either edge of 320, and as high as a row around the middle of 216.
const Fills oneAcross = {"fill 8 88 304 40"};

struct DistanceAndDurationIndicator : DistanceAndDuration {
    Fills drawn() {
        picker->layoutIfNeeded();
        RecordingCanvas canvas;
        picker->renderInContext(canvas);
        Fills fills;
        for (const std::string& call : canvas.painted()) {
            if (call.starts_with("fill")) fills.push_back(call.substr(0, call.find(" with")));
        }
        return fills;
    }
};

} // namespace

TEST_F(DistanceAndDurationIndicator, OneSpansBothWheels) { EXPECT_EQ(drawn(), oneAcross); }

TEST_F(DistanceAndDurationIndicator, AReplacedDistancePickerBringsNoSecondOne) {
    const Ref<GXDistancePickerView> before = picker->distancePicker();
    const auto other = create<GXDistancePickerView>(before->frame());
    before->removeFromSuperview();
    picker->setDistancePicker(other);
    picker->addSubview(other);
    EXPECT_EQ(drawn(), oneAcross);
    EXPECT_TRUE(before->pickerView()->showsSelectionIndicator());
}

TEST_F(DistanceAndDurationIndicator, AReplacedDurationPickerBringsNoSecondOne) {
    const Ref<GXDurationPickerView> before = picker->durationPicker();
    const auto other = create<GXDurationPickerView>(before->frame());
    before->removeFromSuperview();
    picker->setDurationPicker(other);
    picker->addSubview(other);
    EXPECT_EQ(drawn(), oneAcross);
    EXPECT_TRUE(before->pickerView()->showsSelectionIndicator());
}

TEST_F(DistanceAndDurationIndicator, OneThatIsReplacedBeforeItIsRemovedBringsNoSecondOne) {
    const Ref<GXDistancePickerView> before = picker->distancePicker();
    const auto other = create<GXDistancePickerView>(before->frame());
    picker->setDistancePicker(other);
    EXPECT_EQ(drawn(), oneAcross) << "while the one before is still shown";
    picker->addSubview(other);
    before->removeFromSuperview();
    EXPECT_EQ(drawn(), oneAcross);
}

TEST_F(DistanceAndDurationIndicator, WithoutADistancePickerItGoesByTheDuration) {
    picker->setDistancePicker(nullptr);
    EXPECT_EQ(drawn(), oneAcross);
}

TEST_F(DistanceAndDurationIndicator, ADistancePickerThatWasTakenOutDoesNotCount) {
    picker->distancePicker()->removeFromSuperview();
    EXPECT_EQ(drawn(), oneAcross);
}

TEST_F(DistanceAndDurationIndicator, WithoutADurationPickerItGoesByTheDistance) {
    const Ref<GXDurationPickerView> before = picker->durationPicker();
    picker->setDurationPicker(nullptr);
    before->removeFromSuperview();
    EXPECT_EQ(drawn(), oneAcross);
}

TEST_F(DistanceAndDurationIndicator, WithoutBothThereIsNone) {
    picker->distancePicker()->removeFromSuperview();
    picker->durationPicker()->removeFromSuperview();
    EXPECT_EQ(drawn(), Fills());
}
