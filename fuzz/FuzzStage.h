#pragma once

#include "FuzzHand.h"
#include "FuzzListener.h"
#include "UITableView.h"

/// Where views can be: two windows, one of them with a view that scrolls and a table whose rows
/// show them.
class FuzzStage {
public:
    FuzzStage(FuzzBytes& bytes, gx::UIWindowHost& host);
    ~FuzzStage();
    FuzzStage(const FuzzStage&) = delete;
    FuzzStage& operator=(const FuzzStage&) = delete;

    FuzzHand& hand() { return hand_; }
    /// Puts the view somewhere else, or takes it off; `other` may become its superview.
    void place(const gx::Ref<gx::UIView>& view, const gx::Ref<gx::UIView>& other);
    /// The table's data source and delegate.
    void setTableSource(const gx::Ref<FuzzListener>& source);
    /// What happens to a window, the view that scrolls or the table.
    void change(const gx::Ref<gx::UIView>& view);
    void draw();
    /// Everything has to come to rest.
    void end();

private:
    gx::Ref<gx::UIWindow> newWindow() const;
    gx::Ref<gx::UIWindow>& someWindow() { return windows_[bytes_.below(2)]; }
    void closeWindow(gx::Ref<gx::UIWindow>& window);

    FuzzBytes& bytes_;
    gx::UIWindowHost& host_;
    std::array<gx::Ref<gx::UIWindow>, 2> windows_;
    gx::Ref<gx::UIScrollView> scrollView_;
    gx::Ref<gx::UITableView> table_;
    FuzzHand hand_;
};
