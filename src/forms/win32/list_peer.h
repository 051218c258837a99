#pragma once

#include "forms/list_control.h"
#include "forms/win32/control_peer.h"

namespace brx {

/// What list boxes and drop-down lists share: the two have the same messages under different numbers.
class ListPeer : public ControlPeer {
public:
    void font_changed() override;

protected:
    struct Messages {
        UINT reset, add, remove, count, reserve, selected, select;
    };

    ListPeer(FormWindow& window, ListControl& list, const NativeControl& native, const Messages& messages)
        : ControlPeer(window, list, native), list_(list), messages_(messages) {}

    void show(Aspect aspects) override;
    /// The lines are there; the widest is so many pixels wide.
    virtual void show_extent(int width) = 0;

    ListControl& list() const { return list_; }
    void report_selection();

private:
    void show_lines();
    void add_lines(int from);
    void reserve(int from, int to);

    ListControl& list_;
    const Messages& messages_;
    int widest_ = 0;
};

class ListBoxPeer : public ListPeer {
public:
    ListBoxPeer(FormWindow& window, ListBox& list);
    void notified(WORD code) override;

protected:
    void show_extent(int width) override;
    LRESULT handle_message(UINT message, WPARAM wparam, LPARAM lparam) override;
    bool colored_when_disabled() const override { return true; }

private:
    int line_at(int y) const;

    static const Messages messages;
};

class ComboBoxPeer : public ListPeer {
public:
    ComboBoxPeer(FormWindow& window, ComboBox& list);
    void notified(WORD code) override;
    void draw(const DRAWITEMSTRUCT& part) override;

protected:
    void show(Aspect aspects) override;
    void show_extent(int width) override;
    void move_to(const RECT& place) override;

private:
    static const Messages messages;
};

} // namespace brx
