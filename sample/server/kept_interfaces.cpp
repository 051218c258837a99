#include "server/kept_interfaces.h"

#include "com/failure.h"
#include "win32/counted.h"

#include <algorithm>

namespace brx::server {

namespace {

/// Says that it is whatever is kept. Nobody can reach it to call it.
class Placeholder final : public Counted<IUnknown> {
public:
    explicit Placeholder(const std::vector<IID>& interfaces) : interfaces_(interfaces) {}

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override {
        if (!object) return E_POINTER;
        *object = nullptr;
        if (iid != __uuidof(IUnknown) &&
            std::find(interfaces_.begin(), interfaces_.end(), iid) == interfaces_.end())
            return E_NOINTERFACE;
        *object = this;
        AddRef();
        return S_OK;
    }

private:
    std::vector<IID> interfaces_;
};

} // namespace

KeptInterfaces::KeptInterfaces(const std::vector<IID>& interfaces) {
    const com_ptr<Placeholder> placeholder = make_com<Placeholder>(interfaces);
    for (const IID& iid : interfaces) {
        com_ptr<IStream> stream;
        check(CreateStreamOnHGlobal(nullptr, TRUE, stream.out()));
        // Of a program that is not installed nobody can call what the system cannot pass on.
        if (FAILED(CoMarshalInterface(stream.get(), iid, placeholder.get(), MSHCTX_LOCAL, nullptr,
                                      MSHLFLAGS_TABLESTRONG)))
            continue;
        check(stream->Seek({}, STREAM_SEEK_SET, nullptr));
        kept_.push_back(stream);
    }
}

KeptInterfaces::~KeptInterfaces() {
    for (const auto& stream : kept_) CoReleaseMarshalData(stream.get());
}

} // namespace brx::server
