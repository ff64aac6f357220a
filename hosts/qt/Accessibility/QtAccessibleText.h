#pragma once

#include <functional>

#include <QAccessible>

namespace gx::qt {

/// A text that screen readers may read and not change: the value of a spin box, as a person says
/// it. On Linux they read the value there, and say a bare number without it.
class QtAccessibleText final : public QAccessibleTextInterface {
public:
    /// The text is queried with each call.
    using Source = std::function<QString()>;
    explicit QtAccessibleText(Source source) : source_(std::move(source)) {}

    QString text(int start, int end) const override;
    int characterCount() const override { return static_cast<int>(source_().size()); }

    // There is no selection, and the cursor does not move.

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}

    // Characters have neither places nor attributes of their own.

    QRect characterRect(int) const override { return {}; }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    Source source_;
};

} // namespace gx::qt
