#pragma once

#include "common/error.h"

#include <windows.h>

#include <oleauto.h>

#include <new>
#include <typeinfo>

namespace brx {

/// The error that a failure code stands for. A code of the control facility (0x800Axxxx) carries a run-time
/// error number in its low word, any other code is the number itself. Empty texts are replaced: the
/// description by the system's text for the code, the source by the component's name.
Error error_of(HRESULT code, const std::string& description = {}, const std::string& source = {});

/// Throws when a call of the platform failed.
void check(HRESULT result);

/// Throws when a call of a member of `object`'s interface `iid` failed, with the description and source that
/// the object left for it.
void check(HRESULT result, IUnknown* object, REFIID iid);

/// The same for a call of the host's objects, of this member of this interface of the model. One that a
/// person had broken off throws `Stopped`.
void check_call(HRESULT result, IUnknown* object, REFIID iid, const std::type_info& model,
                const char* member);

/// The failure code for an error number, the other way round. A number that is no failure code is E_FAIL.
HRESULT code_of(const Error& error);

/// Leaves the error's description and source for the caller and gives its code.
HRESULT raise(const Error& error, REFIID iid) noexcept;

/// Runs the body of a member of the interface `iid` of one of our objects: whatever it throws becomes a
/// failure code with description and source.
template <class Body> HRESULT guard(REFIID iid, Body&& body) noexcept {
    try {
        body();
        return S_OK;
    } catch (const Error& error) {
        return raise(error, iid);
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const std::exception& other) {
        return raise(Error(error::internal, other.what()), iid);
    } catch (...) {
        return raise(Error(error::internal), iid);
    }
}

} // namespace brx
