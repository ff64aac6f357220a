// Whatever an application and a user do to pickers, in any order, within notices too.

#include "FuzzHand.h"
#include "FuzzViews.h"
#include "GXHeightPickerView.h"
#include "GXLocalization.h"
#include "GXMultiValuePickerView.h"
#include "GXStyleSheet.h"
#include "NullCanvas.h"
#include "UIHost.h"

using namespace gx;

namespace {

class World;

/// Answers to bare wheels with any counts and sizes, and does something whenever it is told or asked.
class Listener : public NSObject,
                 public GXBasePickerViewDelegate,
                 public GXHeightPickerViewDelegate,
                 public UIPickerViewDataSource,
                 public UIPickerViewDelegate {
public:
    World* world = nullptr;

    void pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) override;
    void heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat, bool) override;
    NSInteger numberOfComponentsInPickerView(const Ref<UIPickerView>&) override;
    NSInteger pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) override;
    CGFloat pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) override;
    CGFloat pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) override;
    std::optional<std::string> pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) override;
    void pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) override;

    NSInteger rows = 10;
    CGFloat width = 80;
    CGFloat height = 32;
};

class World : public UIWindowHost {
public:
    explicit World(FuzzBytes& bytes) : bytes_(bytes), window_(create<UIWindow>(CGRectMake(0, 0, 400, 400))) {
        window_->setHost(this);
        for (Ref<Listener>& listener : listeners_) listener = newListener();
    }
    ~World() override {
        window_->setHost(nullptr);
        for (const Ref<Listener>& listener : listeners_) listener->world = nullptr;
        for (int passes = 0; passes < 20; ++passes) NSRunLoop::mainRunLoop()->runPass();
        NSLocale::setCurrentLocale(nullptr);
        GXLocalization::setSharedLocalization(nullptr);
        GXStyleSheet::setGlobalStyleSheet(nullptr);
        GXMultiValuePickerView::setFactory({});
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    void run() {
        for (int left = 150; left > 0 && !bytes_.isEmpty(); --left) act();
        // What is still moving has to come to rest.
        hand_.waitUntilStill();
        window_->settle();
        draw();
    }
    /// Within a call of the library; reactions to reactions end at some depth, as those of any application that works.
    void react() {
        if (depth_ >= 3 || reactions_ >= 200) return;
        ++reactions_;
        ++depth_;
        for (unsigned left = bytes_.below(4); left > 0; --left) act();
        --depth_;
    }
    FuzzBytes& bytes() { return bytes_; }

    void windowNeedsFrame() override {}
    void wheelDidTick() override {
        if (bytes_.below(8) == 7) react();
    }

private:
    Ref<Listener> newListener() {
        auto listener = std::make_shared<Listener>();
        listener->world = this;
        return listener;
    }
    Ref<Listener>& someListener() { return listeners_[bytes_.below(2)]; }
    Ref<UIView>& someView() { return views_[bytes_.below(3)]; }

    void act() {
        Ref<UIView>& slot = someView();
        if (!slot) {
            slot = makeView(bytes_);
            listen(slot);
            window_->addSubview(slot);
            return;
        }
        const Ref<UIView> view = slot;
        switch (bytes_.below(24)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
            return setSomething(bytes_, view);
        case 6:
            return askSomething(bytes_, view);
        case 7:
            return order(wheelOf(view));
        case 8:
        case 9:
        case 10:
            return hand_.touch();
        case 11:
            return hand_.scroll();
        case 12:
        case 13:
            return hand_.press();
        case 14:
        case 15:
        case 16:
            return hand_.wait();
        case 17:
            draw();
            return hand_.hear();
        case 18:
            return surround();
        case 19:
            return listen(view);
        case 20:
            return changeListener();
        case 21:
            return changeWindow(view);
        case 22:
            NSRunLoop::mainRunLoop()->runPass();
            return;
        default:
            return drop(slot);
        }
    }

    void order(const Ref<UIPickerView>& wheel) {
        if (!wheel) return;
        const NSInteger row = bytes_.integer();
        const NSInteger component = bytes_.below(4) == 0 ? bytes_.integer() : bytes_.below(4);
        switch (bytes_.below(4)) {
        case 0:
            return wheel->selectRow_inComponent_animated(row, component, bytes_.flag());
        case 1:
            return wheel->turnToRow_inComponent(row, component);
        case 2:
            return wheel->settle();
        default:
            wheel->layoutIfNeeded();
        }
    }
    void draw() {
        NullCanvas canvas;
        window_->draw(canvas);
        for (const Ref<UIView>& view : std::array(views_)) {
            if (view) view->renderInContext(canvas);
        }
    }
    /// What pickers look up in their surroundings.
    void surround() {
        constexpr std::array<const char*, 6> languages = {"en", "de", "ar_EG", "zh-Hans", "", "xx"};
        const std::string language = languages[bytes_.below(languages.size())];
        switch (bytes_.below(5)) {
        case 0:
            return GXLocalization::sharedLocalization()->setLanguage(language);
        case 1:
            return NSLocale::setCurrentLocale(NSLocale::localeWithIdentifier(language));
        case 2:
            return GXStyleSheet::globalStyleSheet()->setTextScale(bytes_.number());
        case 3:
            return GXStyleSheet::setGlobalStyleSheet(nullptr);
        default:
            GXMultiValuePickerView::setFactory([](CGRect) { return nullptr; });
        }
    }
    void listen(const Ref<UIView>& view) {
        const Ref<Listener> listener = someListener();
        if (const Ref<GXBasePickerView> picker = pickerOf(view)) return picker->setDelegate(listener);
        const Ref<UIPickerView> wheel = wheelOf(view);
        if (!wheel) return;
        if (const auto height = std::dynamic_pointer_cast<GXHeightPickerView>(wheel)) return height->setHeightDelegate(listener);
        wheel->setDataSource(listener);
        wheel->setDelegate(listener);
    }
    void changeListener() {
        Ref<Listener>& listener = someListener();
        switch (bytes_.below(4)) {
        case 0:
            listener = newListener();
            return;
        case 1:
            listener->rows = bytes_.integer();
            return;
        case 2:
            listener->width = bytes_.number();
            return;
        default:
            listener->height = bytes_.number();
        }
    }
    void changeWindow(const Ref<UIView>& view) {
        switch (bytes_.below(8)) {
        case 0:
            return window_->addSubview(view);
        case 1:
            return view->removeFromSuperview();
        case 2:
            return window_->settle();
        case 3:
            return window_->setReceivesKeys(bytes_.flag());
        case 4:
            return window_->setFrame(bytes_.rect());
        case 5:
            return window_->setUserInterfaceStyle(bytes_.flag() ? UIUserInterfaceStyle::Dark : UIUserInterfaceStyle::Light);
        case 6:
            view->becomeFirstResponder();
            return;
        default:
            view->awakeFromNib();
        }
    }
    void drop(Ref<UIView>& slot) {
        const Ref<UIView> view = std::move(slot);
        slot = nullptr;
        view->removeFromSuperview();
    }

    FuzzBytes& bytes_;
    Ref<UIWindow> window_;
    FuzzHand hand_{bytes_, window_};
    std::array<Ref<UIView>, 3> views_;
    std::array<Ref<Listener>, 2> listeners_;
    int depth_ = 0;
    int reactions_ = 0;
};

void Listener::pickerView_didChangeCurrentValue_forComponent(const Ref<GXBasePickerView>&, const NSNumber&, NSInteger) {
    if (world) world->react();
}
void Listener::heightPickerView_didSelectHeightInCm_metric(const Ref<GXHeightPickerView>&, CGFloat, bool) {
    if (world) world->react();
}
void Listener::pickerView_didSelectRow_inComponent(const Ref<UIPickerView>&, NSInteger, NSInteger) {
    if (world) world->react();
}
NSInteger Listener::numberOfComponentsInPickerView(const Ref<UIPickerView>&) {
    if (!world) return 3;
    if (world->bytes().below(8) == 7) world->react();
    return world ? world->bytes().below(7) - NSInteger{1} : 3;
}
NSInteger Listener::pickerView_numberOfRowsInComponent(const Ref<UIPickerView>&, NSInteger) {
    if (world && world->bytes().below(8) == 7) world->react();
    return rows;
}
CGFloat Listener::pickerView_widthForComponent(const Ref<UIPickerView>&, NSInteger) {
    if (world && world->bytes().below(16) == 15) world->react();
    return width;
}
CGFloat Listener::pickerView_rowHeightForComponent(const Ref<UIPickerView>&, NSInteger) { return height; }
std::optional<std::string> Listener::pickerView_titleForRow_forComponent(const Ref<UIPickerView>&, NSInteger row, NSInteger) {
    if (world && world->bytes().below(16) == 15) world->react();
    return std::to_string(row);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    World(bytes).run();
    return 0;
}
