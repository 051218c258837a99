#pragma once

#include "tour/controls.h"
#include "tour/program.h"

namespace tour {

/// A tree in another program.
class Tree {
public:
    Tree(const Program& program, HWND window) : program_(program), window_(window) {}

    /// The nodes in view from the top down, two blanks before the text for each level.
    Lines rows() const;
    /// Clicks on the text of the first node with this text.
    void click_node(const std::wstring& text) const;
    /// Clicks on the sign before it.
    void click_sign(const std::wstring& text) const;

private:
    using Item = LPARAM;

    Item neighbour(WPARAM relation, Item item) const;
    std::wstring text_of(Item item) const;
    /// Of the node's text.
    RECT place_of(const std::wstring& text) const;

    const Program& program_;
    HWND window_;
};

} // namespace tour
