#pragma once

namespace brx {

class Element;

/// What of an element can look different from one moment to the next.
enum class Aspect : unsigned {
    none = 0,
    text = 1,      ///< the caption or the text
    lines = 2,     ///< the lines of a list; the nodes of a tree; the rows and columns of a list view
    selection = 4, ///< the selected line, node, row or tab; the selected part of a text
    enabled = 8,   ///< whether it takes input, its containers considered
    visible = 16,  ///< whether it shows, its containers considered
    colors = 32,   ///< back and fore colour
    place = 64,    ///< where it lies
    value = 128,   ///< the tick of a check box; the interval and state of a timer; a tree's style; a date
    focus = 256,   ///< of a form: which control has the focus
    order = 512,   ///< whether it lies before the controls that it overlaps, or behind them
    everything = 0xFFFFFFFF,
};
constexpr Aspect operator|(Aspect a, Aspect b) {
    return static_cast<Aspect>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}
constexpr bool has(Aspect set, Aspect one) {
    return (static_cast<unsigned>(set) & static_cast<unsigned>(one)) != 0;
}

/// An engine's side of a control or form. It shows the element's state and reports what a person did through
/// the element's `user_...` verbs. It never fires events and keeps no state that the element has.
class Peer {
public:
    Peer(const Peer&) = delete;
    Peer& operator=(const Peer&) = delete;
    virtual ~Peer();

    /// These aspects changed: read them again from the element.
    virtual void refresh(Aspect aspects) = 0;

protected:
    explicit Peer(Element& element);

private:
    Element& element_;
};

} // namespace brx
