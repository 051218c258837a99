#include "objects/database_object.h"

#include "com/com_object.h"
#include "win32/counted.h"

#include <brxModel.h>

namespace brx::host {

namespace {

/// Only objects of this class know this interface; it is nobody else's business, and so is in no library.
constexpr IID our_own{0x6B1B7E6A, 0x9E0F, 0x4C53, {0x8F, 0x2D, 0x61, 0x0C, 0x5A, 0x44, 0x93, 0x1E}};

class DatabaseObject final : public brxModel::hlxDatabase {
public:
    explicit DatabaseObject(std::shared_ptr<DatabaseConnection> connection)
        : connection_(std::move(connection)) {}

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (iid != our_own || !object) return brxModel::hlxDatabase::QueryInterface(iid, object);
        *object = this;
        AddRef();
        return S_OK;
    }
    const std::shared_ptr<DatabaseConnection>& connection() const { return connection_; }

private:
    [[no_unique_address]] ModuleLock lock_;
    std::shared_ptr<DatabaseConnection> connection_;
};

/// Stands for such an object where one of the model is wanted.
class ShownDatabase final : public hlxDatabase, public ComHolder {
public:
    explicit ShownDatabase(std::shared_ptr<DatabaseConnection> connection)
        : object_(make_com<DatabaseObject>(std::move(connection))) {}
    com_ptr<IDispatch> dispatch() const override { return object_; }

private:
    com_ptr<DatabaseObject> object_;
};

} // namespace

ObjectPtr shown_to_dialogs(std::shared_ptr<DatabaseConnection> connection) {
    return std::make_shared<ShownDatabase>(std::move(connection));
}

std::shared_ptr<DatabaseConnection> connection_behind(const hlxDatabasePtr& database) {
    if (!database) throw Error(error::object_not_set);
    const auto* const held = dynamic_cast<const ComHolder*>(database.get());
    void* found = nullptr;
    if (!held || FAILED(held->dispatch()->QueryInterface(our_own, &found))) throw Error(error::type_mismatch);
    return com_ptr<DatabaseObject>::adopt(static_cast<DatabaseObject*>(found))->connection();
}

} // namespace brx::host
