// Any bytes as the content of any record file: it is opened, counted, read, scanned, shown field by field and
// rewritten. The first byte of the input says which file it is. Nothing may crash, and what must hold for every file
// whatever is in it, is tested.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <string_view>

#include "records/overtime_records.h"
#include "records/tariff_records.h"
#include "storage/list_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"

namespace vorbano {
namespace {

constexpr std::string_view path = "fuzzed.vbn";

void require(bool holds) {
    if (!holds) std::abort();
}

void show(std::span<const FieldInfo> fields, std::span<const std::byte> record) {
    for (const FieldInfo& field : fields) require(fieldText(field, record).size() < 3 * field.width + 32);
}

void useRates(const TariffTable& table) {
    for (int row = 0; row < tariffRowCount; ++row) {
        const int found = table.find(table.grade(row));
        require(found >= 0 && found <= row);
        TariffTable other = table;
        other.set(row, table.mark(row), table.rates(row));
    }
}

template <class Record>
void use(const Record& record) {
    if constexpr (std::is_same_v<Record, TariffTable>) useRates(record);
}

template <class Record>
void readRecords(FileSystem& files, std::span<const FieldInfo> fields) {
    const auto file = RecordFile<Record>::open(files, path);
    require(file.ok());
    const auto count = file->count();
    require(count.ok() && *count >= 0 && *count <= maxRecords && file->size() == *count);
    int seen = 0;
    const auto scanned = file->scan([&](int number, const Record& record) {
        require(number == ++seen);
        show(fields, std::as_bytes(std::span(&record, 1)));
        use(record);
    });
    require(scanned.ok() && seen == *count);
    require(file->last().has_value() == (*count > 0));
    for (const int number : {-1, 0, 1, *count, *count + 1, maxRecords, maxRecords + 1}) file->read(number).ignore();
}

/// Every second record is left out; the others take new numbers.
template <class Record>
void rewriteRecords(FileSystem& files) {
    int before = 0;
    const auto done = rewrite<Record>(files, path, reverseFile, [&](int number, Record&) {
        ++before;
        return number % 2 == 1;
    });
    require(done.ok());
    const auto after = RecordFile<Record>::open(files, path);
    require(after.ok() && after->size() == (before + 1) / 2);
}

template <class Record>
void useFile(std::string_view content, std::span<const FieldInfo> fields) {
    MemoryFileSystem files;
    require(writeWhole(files, path, content).ok());
    readRecords<Record>(files, fields);
    rewriteRecords<Record>(files);
    readRecords<Record>(files, fields);
}

using UseFile = void (*)(std::string_view content);
constexpr UseFile uses[] = {
    [](std::string_view content) { useFile<NameRecord>(content, nameFields); },
    [](std::string_view content) { useFile<TariffTable>(content, tariffTableFields()); },
    [](std::string_view content) { useFile<DatedTariffRow>(content, datedTariffFields); },
    [](std::string_view content) { useFile<SecretaryTariff>(content, secretaryFields()); },
    [](std::string_view content) { useFile<ContribRates>(content, contribFields); },
    [](std::string_view content) { useFile<EmployeeRecord>(content, employeeFields); },
    [](std::string_view content) { useFile<LatePeriodRecord>(content, quartumFields); },
    [](std::string_view content) { useFile<LatePeriodRecord>(content, pentiumFields); },
    [](std::string_view content) { useFile<MeirinRecord>(content, meirinFields); },
    [](std::string_view content) { useFile<DuedateRecord>(content, duedateFields); },
};

}  // namespace
}  // namespace vorbano

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const std::string content(data + 1, data + size);
    vorbano::uses[data[0] % std::size(vorbano::uses)](content);
    return 0;
}
