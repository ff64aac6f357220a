// A dialog of Qt with a picker in it.

#include <iostream>

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

#include <GXUIPickers/GXUIPickers.h>
#include <GXUIPickers/QtHost.h>
#include <GXUIPickers/UIViewWidget.h>

using namespace gx;

/// Shows in a label what the user picks.
class LabelUpdate : public NSObject, public GXBasePickerViewDelegate {
public:
    explicit LabelUpdate(QLabel& label) : label_(label) {}
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& picker, const NSNumber&, NSInteger) override {
        label_.setText(QString::fromStdString(picker->currentValueText()));
    }

private:
    QLabel& label_;
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    qt::installQtHost(application); // Once, before the first view.

    const auto picker = create<GXTemperaturePickerView>(CGRectMake(0, 0, 320, 216));
    picker->setIsMetric(true);
    // From -20 on. Range, step and value are degrees Celsius, whatever the wheel shows.
    picker->setStepSize(NSNumber::numberWithInt(1));
    picker->setCurrentValue(NSNumber::numberWithInt(18));

    QDialog dialog;
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const label = new QLabel(QString::fromStdString(picker->currentValueText()));
    auto* const widget = new qt::UIViewWidget; // Owned by the layout's dialog, like every widget.
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
    widget->setRootView(picker); // The view's frame becomes the size hint.
    layout->addWidget(label);
    layout->addWidget(widget, 1);
    layout->addWidget(buttons);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);

    // Kept here: the picker holds it weakly.
    const auto update = std::make_shared<LabelUpdate>(*label);
    picker->setDelegate(update);

    // With an argument nobody is there: the dialog turns its own wheel and closes.
    if (argc > 1) {
        QTimer::singleShot(0, &dialog, [&] {
            picker->pickerView()->turnToRow_inComponent(45, 0);
            dialog.accept();
        });
    }
    dialog.exec();
    std::cout << label->text().toStdString() << "\n";
    return 0;
}
