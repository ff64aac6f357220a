#pragma once

#include <gtest/gtest.h>

#include "TestWindow.h"
#include "WheelSource.h"

using namespace gx;
using Notices = std::vector<WheelSource::Notice>;
using Code = UIKey::Code;

/// A wheel of 320 by 216 points with columns of 80 by 40, 5 apart, which has the focus.
struct UIPickerViewKeys : testing::Test {
    explicit UIPickerViewKeys(std::vector<NSInteger> rows = {100, 100}) {
        source->rows = std::move(rows);
        wheel->reloadAllComponents();
        window.tick(0);
        wheel->becomeFirstResponder();
    }
    void stand(NSInteger row, NSInteger component = 0) {
        wheel->selectRow_inComponent_animated(row, component, false);
        window.tick(0);
    }

    Ref<WheelSource> source = create<WheelSource>();
    Ref<UIPickerView> wheel = wheelWithSource(source);
    TestWindow window{wheel};
};

struct UIPickerViewKeysThreeColumns : UIPickerViewKeys {
    UIPickerViewKeysThreeColumns() : UIPickerViewKeys({100, 1, 10}) {}
};

/// Minutes and seconds, titled 00 to 59.
struct UIPickerViewKeysTimes : UIPickerViewKeys {
    UIPickerViewKeysTimes() : UIPickerViewKeys({60, 60}) {
        source->title = [](NSInteger row, NSInteger) { return (row < 10 ? "0" : "") + std::to_string(row); };
        wheel->reloadAllComponents();
        window.tick(0);
    }
};
