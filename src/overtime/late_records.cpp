#include "overtime/late_records.h"

#include <limits>

#include "storage/dates.h"

namespace vorbano {

namespace {

/// A period of which nothing is known yet: no hours, and left out unless others of the file have dates.
LatePeriodRecord newLate(const EmployeeRecord& employee, const LatePeriodRecord* example) {
    LatePeriodRecord record{};
    record.pools = employee.pools;
    record.name = employee.name;
    record.from = excludedMark;
    record.to = excludedMark;
    if (example != nullptr) {
        record.from = example->from;
        record.to = example->to;
    }
    record.totalAuthorised = employee.totAut;
    record.executed = employee.executed;
    record.totalExecuted = employee.totEseg;
    record.lblCat = employee.lblCat;
    record.lblCat2 = employee.lblCat2;
    record.pay = employee.pay;
    return record;
}

}  // namespace

std::vector<LatePeriodRecord> completed(std::vector<LatePeriodRecord> stored,
                                        const std::vector<EmployeeRecord>& staff) {
    while (stored.size() < staff.size()) {
        stored.push_back(newLate(staff[stored.size()], stored.empty() ? nullptr : &stored.front()));
    }
    return stored;
}

Result<> replaceLate(FileSystem& files, const OvertimePaths& paths, std::size_t late,
                     const std::vector<LatePeriodRecord>& records) {
    return replaceAll(files, paths.late[late], paths.lateNew[late], records);
}

bool fits(std::int64_t figure) {
    using Limits = std::numeric_limits<std::int16_t>;
    return figure >= Limits::min() && figure <= Limits::max();
}

void put(Integer& field, std::int64_t figure) {
    if (fits(figure)) field = static_cast<std::int16_t>(figure);
}

}  // namespace vorbano
