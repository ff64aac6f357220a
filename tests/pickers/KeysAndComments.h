#pragma once

#include "GXLocalization.h"

/// A localiser that shows what it was asked for: its texts are "key|comment".
struct KeysAndComments : gx::GXLocalization {
    std::optional<std::string> localizedStringWithKey_comment(const std::string& key, const std::string& comment) const override {
        return key + "|" + comment;
    }
};
