#pragma once

#include "FuzzBytes.h"

/// Whatever may happen to views, one act after the other, as the bytes say; and further acts within
/// any call of the library.
class FuzzWorld {
public:
    explicit FuzzWorld(FuzzBytes& bytes) : bytes_(bytes) {}
    virtual ~FuzzWorld() = default;
    FuzzWorld(const FuzzWorld&) = delete;
    FuzzWorld& operator=(const FuzzWorld&) = delete;

    FuzzBytes& bytes() const { return bytes_; }
    /// Within a call of the library, one time in `odds`. Reactions to reactions end at some depth,
    /// as those of any application that works.
    void react(unsigned odds = 1) {
        if (depth_ >= 3 || reactions_ >= 150 || (odds > 1 && bytes_.below(odds) != odds - 1)) return;
        ++reactions_;
        ++depth_;
        for (unsigned left = bytes_.below(4); left > 0; --left) act();
        --depth_;
    }

protected:
    virtual void act() = 0;
    void actUntilBytesEnd() {
        for (int left = 150; left > 0 && !bytes_.isEmpty(); --left) act();
    }

private:
    FuzzBytes& bytes_;
    int depth_ = 0;
    int reactions_ = 0;
};
