#pragma once

#include <string>
#include <string_view>

namespace brx {

/// A text that is read again and again and hardly ever differs. It is kept beside the bytes that it was made
/// from, so that reading the same again costs a comparison and no conversion.
class HeldText {
public:
    const std::string& text() const { return text_; }

    /// Takes what was read, in whatever form its owner keeps texts. False when it is what was held; otherwise
    /// `convert` writes the text.
    template <class Convert> bool hold(std::string_view bytes, Convert&& convert) {
        if (bytes == bytes_ && holds_) return false;
        holds_ = false; // until all of it is there
        convert(text_);
        bytes_ = bytes;
        return holds_ = true;
    }

private:
    std::string bytes_;
    std::string text_;
    bool holds_ = false;
};

} // namespace brx
