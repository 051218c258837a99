#include "objects/help_object.h"

#include "adapters/to_com.h"
#include "common/values/utf16.h"
#include "win32/module.h"

#include <filesystem>

namespace brx::host {

namespace {

constexpr int folders_to_look_in = 3;

class Help final : public hlxHelp {
public:
    std::string HelpFile() override {
        std::filesystem::path folder = module_path();
        for (int i = 0; i < folders_to_look_in; ++i) {
            folder = folder.parent_path();
            const std::filesystem::path file = folder / L"brxOpcDlgs6.chm";
            std::error_code unreadable;
            if (std::filesystem::is_regular_file(file, unreadable))
                return utf8_of(std::wstring_view(file.native()));
        }
        return {};
    }
};

} // namespace

com_ptr<IDispatch> new_help_object() { return dispatch_of(std::make_shared<Help>()); }

} // namespace brx::host
