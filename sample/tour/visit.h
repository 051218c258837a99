#pragma once

#include "tour/controls.h"
#include "tour/guide.h"
#include "tour/tree.h"

namespace tour {

/// The tabs of the dialog of a configuration.
namespace tab {
inline constexpr int sampling = 2;
inline constexpr int descriptors = 3;
inline constexpr int server_information = 4;
} // namespace tab

/// What she does in the dialogs, and what she reads there.
class Visit {
public:
    Visit(const Program& program, Guide& guide) : program_(program), guide_(guide) { guide_.go_to(program); }

    void selecting();
    void adding();
    void browsing();
    void browsing_other_servers();
    void configurations();
    void running();
    void editing_a_test();
    void configuring();
    void configuring_in_vain();
    /// In a host that was started again.
    void finding_the_test_again();
    void finding_the_configuration_again();
    void watching();
    /// Closes the host.
    void leaving();

private:
    // What she reads in the window in front.
    bool at(const std::wstring& name) const { return program_.front_name() == name; }
    Lines lines(const std::wstring& list) const { return lines_of(program_, program_.control(list)); }
    std::wstring reads(const std::wstring& control) const { return text_of(program_.control(control)); }
    Tree tree() const { return {program_, program_.control(L"TrView")}; }
    bool is_visible(const std::wstring& control) const { return IsWindowVisible(program_.control(control)); }
    bool can_press(const std::wstring& button) const;
    bool message_starts(const std::wstring& headline) const;

    /// The cells of a row of a list view.
    Lines cells(const std::wstring& list, int row, int columns) const;
    /// The test that she has edited, as the host's window shows it.
    bool edited_test_is_listed() const;

    /// What she reads on the tabs of the configuration that she has made.
    bool general_is_filled_in() const;
    bool sampling_is_filled_in() const;
    bool descriptors_are_filled_in() const;
    bool configuration_is_listed() const;
    /// In the host's window.
    bool chart_tells(const std::wstring& text) const;
    /// Whether the host's log ends with this.
    bool log_tells(const std::wstring& text) const {
        return at(L"frmHost") && reads(L"txtLog").ends_with(text);
    }

    // What she does there.
    void press(const std::wstring& button) const;
    void click_on(const std::wstring& list, const std::wstring& line, bool twice = false) const;
    void fill_in(const std::wstring& box, const std::wstring& text) const;
    /// Turns to a tab of the configuration dialog, which has this control.
    void turn_to(int tab, const std::wstring& control) const;
    /// Presses the message box away; then the named dialog is in front again.
    void answer(const std::wstring& dialog) const;

    /// In the host's window.
    void select_first_server() const;
    void choose_server(const std::wstring& server) const;
    void ask_node(const std::string& telling, const std::string& picture, const std::wstring& node,
                  const std::function<bool(const Lines&)>& found);
    void enter_node(const std::wstring& node) const;
    bool nothing_found(const Lines& found) const;
    void choose_characteristic();
    void choose_item();
    void set_trigger();
    void select_flow_computer() const;
    void add_test();
    void set_sampling();
    void set_subgroup_trigger();
    void add_descriptors();
    void add_descriptor(const std::wstring& type) const;
    void watch_status();
    /// From the host's window, a server of this computer.
    void add_server(const std::wstring& server) const;

    const Program& program_;
    Guide& guide_;
};

} // namespace tour
