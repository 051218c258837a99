#include "dll/show.h"

#include "com/call_retries.h"
#include "com/system_locale.h"
#include "common/trace.h"
#include "common/trap.h"
#include "dll/com_error_libraries.h"
#include "dll/com_object_factory.h"
#include "dll/trace_file.h"
#include "forms/turn.h"
#include "forms/win32/engine.h"
#include "win32/com_ptr.h"

#include <memory>

namespace brx {

namespace {

/// What the dialogs of one Show run in.
struct Surroundings {
    Win32Engine engine;
    ComErrorLibraries libraries;
    ComObjectFactory objects;
    Environment environment{engine, libraries, objects, Locale()};
};

/// The trap around what a public class needs before its own begins.
class ShowProcedure : private Module {
public:
    using Module::Module;

    template <class Body> void run(Body&& body) const noexcept { trap("Show", std::forward<Body>(body)); }
};

} // namespace

HRESULT show(IUnknown& object, const char* class_name, VARIANT_BOOL* result,
             const std::function<bool(Environment&)>& dialog) noexcept {
    const com_ptr<IUnknown> alive(&object);
    trace_as_asked();
    trace::line([&] { return std::string(class_name) + ".Show begins"; });
    // Until a dialog is open, windows of other dialogs on this thread are not to be worked with.
    const CodeTurn code;
    const Work::Pause others; // of a dialog from whose handler the host shows this one
    // Not on the stack, which goes at once when the host ends the thread in one of its objects.
    std::unique_ptr<Surroundings> surroundings;
    if (!attempt([&] { surroundings = std::make_unique<Surroundings>(); })) {
        if (result) *result = VARIANT_FALSE; // without memory there is nothing to tell it with
        return S_OK;
    }
    Surroundings& here = *surroundings;
    const CallRetries retries([&work = here.engine.work()] { return work.is_stopped(); });
    bool outcome = false;
    ShowProcedure(class_name, here.environment.errors).run([&] {
        here.environment.locale = system_locale();
        here.engine.work().set_locale(here.environment.locale);
        outcome = dialog(here.environment);
    });
    trace::line([&] { return std::string(class_name) + ".Show ends: " + (outcome ? "True" : "False"); });
    if (result) *result = outcome ? VARIANT_TRUE : VARIANT_FALSE;
    return S_OK;
}

} // namespace brx
