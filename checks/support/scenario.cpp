#include "scenario.h"

#include "common/version.h"

namespace brx::checks {

Showing::Showing(Stage& stage, const std::string& class_name) : stage_(stage) {
    stage_.start([&] { instance_->class_object = stage_.create(class_name); });
}

Showing::~Showing() {
    // Released on the stage's thread: now, or by the job that still runs.
    if (!stage_.busy()) stage_.start([&] { instance_.reset(); });
}

void Showing::set_ServerIndex(std::int16_t index) {
    stage_.start([&] { instance_->class_object->set_ServerIndex(index); });
}

std::int16_t Showing::ServerIndex() {
    std::int16_t index = 0;
    stage_.start([&] { index = instance_->class_object->ServerIndex(); });
    return index;
}

void Showing::set_ItemID(const std::string& item_id) {
    stage_.start([&] { instance_->class_object->set_ItemID(item_id); });
}

std::string Showing::ItemID() {
    std::string item_id;
    stage_.start([&] { item_id = instance_->class_object->ItemID(); });
    return item_id;
}

void Showing::show_with(const std::vector<ObjectPtr>& objects) {
    stage_.start(
        [instance = instance_, objects] { instance->result = instance->class_object->Show(objects); });
}

bool Showing::result() {
    if (stage_.busy()) {
        const std::string front = stage_.screen().front();
        ADD_FAILURE() << "Show has not returned; in front is: " << front;
        throw GaveUp(front);
    }
    return instance_->result;
}

void Play::expect_report(std::int32_t number, const std::string& location, ErrorLibrary library) {
    if (host.reports.empty()) {
        ADD_FAILURE() << "There is no report of error " << number << " in " << location;
        return;
    }
    const Report report = host.reports.front();
    host.reports.erase(host.reports.begin());
    EXPECT_EQ(report.what.number, number);
    EXPECT_EQ(report.what.location, location);
    EXPECT_EQ(report.library, library);
    EXPECT_FALSE(report.what.description.empty());
    EXPECT_FALSE(report.what.source.empty());
    EXPECT_EQ(report.what.application, "brxOpcDlgs6 " BRX_VERSION_TEXT);
}

void Play::close_everything() {
    Screen& screen = stage->screen();
    for (int patience = 20; patience > 0 && stage->busy(); --patience) {
        if (const auto box = screen.message()) {
            const bool has_cancel = (box->style & 0xF) == message::ok_cancel;
            screen.answer(has_cancel ? message::cancel : message::ok);
        } else {
            screen.close_box();
        }
    }
    EXPECT_FALSE(stage->busy()) << "A window could not be closed: " << screen.front();
}

void Play::expect_clean_end() {
    Screen& screen = stage->screen();
    if (const auto box = screen.message())
        ADD_FAILURE() << "Nobody expected the message \"" << box->text << "\"";
    EXPECT_EQ(screen.front(), "") << "A dialog was left open.";
    close_everything();
    for (const Report& report : host.reports)
        ADD_FAILURE() << "Nobody expected the report of error " << report.what.number << ", "
                      << report.what.description << ", in " << report.what.location;
    EXPECT_EQ(host.still_held(), "");
    EXPECT_EQ(stage->differences(), "");
    EXPECT_EQ(stage->leaks(), "");
}

void play(const Story& story) {
    Play its;
    try {
        story(its);
    } catch (const GaveUp&) {
        // Recorded where it happened.
    }
    its.expect_clean_end();
}

} // namespace brx::checks
