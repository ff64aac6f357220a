// Whatever an application and a user do to pickers, in any order, within notices too.

#include "FuzzProperties.h"
#include "FuzzServices.h"
#include "FuzzStage.h"
#include "FuzzViews.h"
#include "GXHeightPickerView.h"
#include "NullCanvas.h"
#include "UIHost.h"

using namespace gx;

namespace {

/// An application's own wheel, which does anything whenever the library calls it.
class OwnWheel : public GXMultiValuePickerView {
public:
    FuzzWorld* world = nullptr;

    void reloadAllComponents() override {
        GXMultiValuePickerView::reloadAllComponents();
        react(16);
    }
    void selectRow_inComponent_animated(NSInteger row, NSInteger component, bool animated) override {
        react(16);
        GXMultiValuePickerView::selectRow_inComponent_animated(row, component, animated);
    }
    void layoutSubviews() override {
        react(16);
        GXMultiValuePickerView::layoutSubviews();
        react(16);
    }
    void didMoveToWindow() override {
        react(8);
        GXMultiValuePickerView::didMoveToWindow();
    }
    void finishAnimations() override {
        react(8);
        GXMultiValuePickerView::finishAnimations();
    }
    void touchCancelled(const UITouch& touch) override {
        GXMultiValuePickerView::touchCancelled(touch);
        react(4);
    }
    void tintColorDidChange() override { react(4); }
    void focusDidChange() override {
        GXMultiValuePickerView::focusDidChange();
        react(4);
    }

private:
    void react(unsigned odds) const {
        if (world) world->react(odds);
    }
};

class World : public FuzzWorld, public UIWindowHost {
public:
    explicit World(FuzzBytes& bytes) : FuzzWorld(bytes), stage_(bytes, *this) {
        for (Ref<FuzzListener>& listener : listeners_) listener = newListener();
    }
    ~World() override {
        GXMultiValuePickerView::setFactory({});
        endReactions();
        for (const Ref<FuzzListener>& listener : listeners_) listener->setWorld(nullptr, nullptr);
        for (const WeakRef<OwnWheel>& entry : ownWheels_) {
            if (const Ref<OwnWheel> wheel = entry.lock()) wheel->world = nullptr;
        }
        // A picker that was put into its own wheel, or shown in a row there, makes a ring of
        // references.
        for (const WeakRef<UIPickerView>& entry : answered_) {
            if (const Ref<UIPickerView> wheel = entry.lock()) wheel->setDelegate({});
        }
        for (const WeakRef<UIView>& entry : made_) {
            if (const Ref<UIView> view = entry.lock()) view->removeFromSuperview();
        }
        for (int passes = 0; passes < 20; ++passes) NSRunLoop::mainRunLoop()->runPass();
        restoreSurroundings();
    }
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    void run() {
        actUntilBytesEnd();
        stage_.end();
    }

    void windowNeedsFrame() override {}
    void giveFeedback(UIFeedback) override { react(8); }

private:
    Ref<FuzzListener> newListener() {
        auto listener = std::make_shared<FuzzListener>();
        listener->setWorld(this, &views_);
        return listener;
    }
    Ref<OwnWheel> newOwnWheel(CGRect frame) {
        auto wheel = create<OwnWheel>(frame);
        wheel->world = this;
        ownWheels_.push_back(wheel);
        return wheel;
    }
    Ref<FuzzListener>& someListener() { return listeners_[bytes().below(2)]; }
    Ref<UIView>& someView() { return views_[bytes().below(3)]; }

    void act() override {
        Ref<UIView>& slot = someView();
        if (!slot) return fill(slot);
        switch (bytes().below(32)) {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4:
        case 5:
            return setSomething(bytes(), slot.get());
        case 6:
            return askSomething(bytes(), slot);
        case 7:
        case 8:
            return order(wheelOf(slot).get());
        case 9:
        case 10:
        case 11:
            return stage_.hand().touch();
        case 12:
            return stage_.hand().scroll();
        case 13:
        case 14:
        case 15:
            return stage_.hand().press();
        case 16:
        case 17:
        case 18:
            return stage_.hand().wait();
        case 19:
        case 20:
            return stage_.hand().hear();
        case 21:
            return draw();
        case 22:
            return changeSurroundings(slot);
        case 23:
            return listen(slot);
        case 24:
            return changeListener();
        case 25:
        case 26:
            return stage_.place(slot, someView());
        case 27:
        case 28:
            return stage_.change(slot);
        case 29:
            return NSRunLoop::mainRunLoop()->runPass();
        case 30:
            return bytes().flag() ? focus(slot) : slot->awakeFromNib();
        default:
            return drop(slot);
        }
    }

    void fill(Ref<UIView>& slot) {
        const Ref<UIView> made = makeView(bytes());
        slot = made;
        made_.push_back(made);
        listen(made);
        bytes().flag() ? stage_.place(made, someView()) : stage_.place(made, nullptr);
    }
    static void drop(Ref<UIView>& slot) {
        const Ref<UIView> view = std::exchange(slot, nullptr);
        view->removeFromSuperview();
    }
    static void focus(const Ref<UIView>& view) {
        if (UIPickerView* const wheel = wheelOf(view).get()) wheel->becomeFirstResponder();
    }
    // The view is not held meanwhile: a callback may drop it, as an application
    // may.
    void order(UIPickerView* wheel) {
        if (!wheel) return;
        const NSInteger row = bytes().integer();
        const NSInteger component = bytes().below(4) == 0 ? bytes().integer() : bytes().below(4);
        switch (bytes().below(4)) {
        case 0:
            return wheel->selectRow_inComponent_animated(row, component, bytes().flag());
        case 1:
            return wheel->turnToRow_inComponent(row, component);
        case 2:
            return wheel->finishAnimations();
        default:
            wheel->layoutIfNeeded();
        }
    }
    void draw() {
        stage_.draw();
        NullCanvas canvas;
        for (const Ref<UIView>& view : std::array(views_)) {
            if (view) view->renderInContext(canvas);
        }
    }

    void changeSurroundings(const Ref<UIView>& view) {
        switch (bytes().below(4)) {
        case 0:
            return setFactory();
        case 1:
            return bytes().flag() ? setReactingService(*this) : setReactingFormatter(*this, pickerOf(view));
        default:
            return setSurroundings(bytes());
        }
    }

    /// Wheels of the application: none, plain ones, its own, one that another picker has already;
    /// or any of them after something else.
    void setFactory() {
        const unsigned kind = bytes().below(8);
        if (kind == 0) return GXMultiValuePickerView::setFactory({});
        GXMultiValuePickerView::setFactory([this, kind](CGRect frame) -> Ref<GXMultiValuePickerView> {
            if (kind % 2 == 1) react(2);
            if (kind < 2) return nullptr;
            if (kind < 4) return create<GXMultiValuePickerView>(frame);
            if (kind < 6) return newOwnWheel(frame);
            return std::dynamic_pointer_cast<GXMultiValuePickerView>(wheelOf(someView()));
        });
    }

    /// Becomes the delegate of a picker or, of a wheel alone, its data source too. Sometimes a
    /// picker's own wheel gets another one.
    void listen(const Ref<UIView>& view) {
        const Ref<FuzzListener> listener = someListener();
        const Ref<GXBasePickerView> picker = pickerOf(view);
        const Ref<UIPickerView> wheel = wheelOf(view);
        const auto height = std::dynamic_pointer_cast<GXHeightPickerView>(wheel);
        const unsigned part = bytes().below(8);
        if (picker) picker->setDelegate(listener);
        if (height) height->setHeightDelegate(listener);
        if (!wheel) return;
        answered_.push_back(wheel);
        const bool hasOwnAnswers = picker || height;
        if (!hasOwnAnswers || part == 0 || part == 1) wheel->setDataSource(listener);
        if (!hasOwnAnswers || part == 0 || part == 2) wheel->setDelegate(listener);
        if (part == 3) wheel->setDataSource({});
        if (part == 4) wheel->setDelegate({});
        if (part != 5) return;
        if (height) height->setupSelf();
        if (!picker) return;
        wheel->setDataSource(picker);
        wheel->setDelegate(picker);
    }
    void changeListener() {
        Ref<FuzzListener>& listener = someListener();
        switch (bytes().below(4)) {
        case 0:
            listener = newListener();
            return;
        case 1:
            return stage_.setTableSource(listener);
        default:
            listener->changeAnswers(bytes());
        }
    }

    std::vector<WeakRef<OwnWheel>> ownWheels_;
    std::vector<WeakRef<UIView>> made_;
    std::vector<WeakRef<UIPickerView>> answered_;
    std::array<Ref<UIView>, 3> views_;
    FuzzStage stage_;
    std::array<Ref<FuzzListener>, 2> listeners_;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzBytes bytes(data, size);
    World(bytes).run();
    return 0;
}
