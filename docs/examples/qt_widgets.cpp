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
class LabelUpdate : public GXBasePickerViewDelegate {
public:
    explicit LabelUpdate(QLabel& label) : label_(label) {}
    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>& picker, const NSNumber&, NSInteger) override {
        label_.setText(QString::fromStdString(picker->currentValueText()));
    }

private:
    QLabel& label_;
};

/// Shows a picker in the largest fonts with which nothing of it is cut.
class PickerWidget : public qt::UIViewWidget {
public:
    explicit PickerWidget(const Ref<GXBasePickerView>& picker) : picker_(picker) {
        setRootView(picker);      // The view's frame becomes the size hint.
        setMinimumSize(240, 132); // Without one a layout may make it smaller than its texts.
    }

protected:
    void resizeEvent(QResizeEvent* event) override {
        UIViewWidget::resizeEvent(event); // Gives the picker its frame.
        picker_->sizeFontsToFit();
    }

private:
    Ref<GXBasePickerView> picker_;
};

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    // Once, before the first view: the decimal separator and the direction of the user's locale.
    qt::QtHostOptions options;
    const QLocale locale = QLocale::system();
    options.locale = locale;
    qt::installQtHost(application, options);
    // The language of the texts is the application's.
    GXLocalization::sharedLocalization()->setLanguage(locale.name().toStdString());

    const auto picker = create<GXTemperaturePickerView>(CGRectMake(0, 0, 320, 216));
    picker->setIsMetric(true);
    // From -20 on. Range, step and value are degrees Celsius, whatever the wheel shows.
    picker->setStepSize(NSNumber::numberWithInt(1));
    picker->setCurrentValue(NSNumber::numberWithInt(18));

    QDialog dialog;
    auto* const layout = new QVBoxLayout(&dialog);
    auto* const label = new QLabel(QString::fromStdString(picker->currentValueText()));
    auto* const widget = new PickerWidget(picker); // Owned by the dialog.
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok);
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
