#include "apart/main_stories.h"

// The dialogs with an OPC server in another process, as most are: calls travel by the system's proxies.

namespace brx::checks {

namespace {

class Apart : public testing::TestWithParam<MainStory> {
protected:
    static void SetUpTestSuite() { installed_ = std::make_unique<InstalledServer>(); }
    static void TearDownTestSuite() { installed_ = nullptr; }

    static void tell(ApartPlay& play) {
        try {
            GetParam().tell(play);
        } catch (const GaveUp&) {
            // Recorded where it happened.
        }
    }

private:
    static inline std::unique_ptr<InstalledServer> installed_;
};

std::string name_of_story(const testing::TestParamInfo<MainStory>& info) { return info.param.name; }

TEST_P(Apart, ThePersonDoesItAndEverythingIsGivenBack) {
    ApartPlay play;
    tell(play);
    play.expect_clean_end();
}

INSTANTIATE_TEST_SUITE_P(EachDialog, Apart, testing::ValuesIn(main_stories()), name_of_story);

} // namespace

} // namespace brx::checks
