#include "objects/record_objects.h"

#include "adapters/to_com.h"
#include "objects/database_object.h"
#include "objects/picker.h"

namespace brx::host {

namespace {

/// Lets a person pick a record of a kind.
class Selection final : public hlxSelection {
public:
    explicit Selection(RecordKind kind) : kind_(kind) {}

    /// What was picked before stays when nothing is picked now.
    bool Show(const hlxDatabasePtr& database, std::int32_t id, std::int32_t group_id) override {
        const auto connection = connection_behind(database);
        const auto picked = pick_record(kind_, RecordStore(connection->file(), kind_), id, group_id);
        if (!picked) return false;
        if (kind_ == RecordKind::characteristic)
            record_ = std::make_shared<TestData>(connection, *picked);
        else
            record_ = std::make_shared<host::Record>(kind_, host::Record::Level::record, *picked,
                                                     connection_behind);
        return true;
    }
    ObjectPtr Record() override { return record_; }

private:
    RecordKind kind_;
    ObjectPtr record_;
};

} // namespace

com_ptr<IDispatch> new_record_object(RecordKind kind, Record::Level level) {
    return dispatch_of(std::make_shared<Record>(kind, level, connection_behind));
}

com_ptr<IDispatch> new_selection_object(RecordKind kind) {
    return dispatch_of(std::make_shared<Selection>(kind));
}

} // namespace brx::host
