#include "host/subgroup_store.h"

namespace brx::host {

namespace {

void add_pieces(SqliteFile& file, std::int64_t id, const std::vector<double>& pieces) {
    std::int64_t position = 0;
    for (const double piece : pieces)
        Statement(file, "INSERT INTO piece (subgroup_id, position, value) VALUES (?1, ?2, ?3)")
            .bind(1, id)
            .bind(2, ++position)
            .bind(3, piece)
            .step();
}

void add_labels(SqliteFile& file, std::int64_t id, const std::vector<collect::Label>& labels) {
    std::int64_t position = 0;
    for (const collect::Label& label : labels)
        Statement(file, "INSERT INTO label (subgroup_id, position, type, item_name, group_name)"
                        " VALUES (?1, ?2, ?3, ?4, ?5)")
            .bind(1, id)
            .bind(2, ++position)
            .bind(3, std::int64_t{label.type})
            .bind(4, label.item)
            .bind(5, label.group)
            .step();
}

std::vector<double> pieces_of(SqliteFile& file, std::int64_t id) {
    Statement select(file, "SELECT value FROM piece WHERE subgroup_id = ?1 ORDER BY position");
    select.bind(1, id);
    std::vector<double> pieces;
    while (select.step()) pieces.push_back(select.real(0));
    return pieces;
}

std::vector<collect::Label> labels_of(SqliteFile& file, std::int64_t id) {
    Statement select(
        file, "SELECT type, item_name, group_name FROM label WHERE subgroup_id = ?1 ORDER BY position");
    select.bind(1, id);
    std::vector<collect::Label> labels;
    while (select.step())
        labels.push_back({static_cast<int>(select.number(0)), select.text(1), select.text(2)});
    return labels;
}

} // namespace

void SubgroupStore::add(const StoredSubgroup& subgroup) {
    Transaction transaction(file_);
    // A test can have been removed since.
    Statement(file_, "INSERT INTO subgroup (test_id, characteristic_id, item_id, completed) VALUES"
                     " ((SELECT id FROM test WHERE id = ?1), (SELECT id FROM record WHERE id = ?2), ?3, ?4)")
        .bind(1, subgroup.test_id)
        .bind(2, subgroup.characteristic_id)
        .bind(3, subgroup.item_id)
        .bind(4, subgroup.completed.days)
        .step();
    const std::int64_t id = file_.last_row_id();
    add_pieces(file_, id, subgroup.pieces);
    add_labels(file_, id, subgroup.labels);
    transaction.commit();
}

std::map<std::int64_t, std::int64_t> SubgroupStore::counts(std::int64_t configuration_id) {
    Statement select(file_, "SELECT test_id, count(*) FROM subgroup JOIN test ON test.id = test_id"
                            " WHERE configuration_id = ?1 GROUP BY test_id");
    select.bind(1, configuration_id);
    std::map<std::int64_t, std::int64_t> counts;
    while (select.step()) counts[select.number(0)] = select.number(1);
    return counts;
}

std::vector<StoredSubgroup> SubgroupStore::of_test(std::int64_t test_id) {
    Statement select(file_,
                     "SELECT id, characteristic_id, item_id, completed FROM subgroup WHERE test_id = ?1"
                     " ORDER BY id");
    select.bind(1, test_id);
    std::vector<StoredSubgroup> all;
    while (select.step())
        all.push_back({.test_id = test_id,
                       .characteristic_id = select.number(1),
                       .item_id = select.text(2),
                       .completed = {select.real(3)},
                       .pieces = pieces_of(file_, select.number(0)),
                       .labels = labels_of(file_, select.number(0))});
    return all;
}

} // namespace brx::host
