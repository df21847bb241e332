// Any bytes as the content of any record file of the program: it is opened, counted, read, scanned, shown field by
// field and rewritten. The first byte of the input says which file it is. Nothing may crash, and what must hold for
// every file whatever is in it, is tested.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

#include "fuzzing.h"
#include "program/record_files.h"
#include "records/overtime_records.h"
#include "records/payment_records.h"
#include "records/statement_records.h"
#include "records/station_records.h"
#include "records/station_tariff_records.h"
#include "records/tariff_records.h"
#include "storage/list_files.h"
#include "storage/memory_file_system.h"
#include "storage/record_file.h"

namespace vorbano {
namespace {

using fuzzing::require;

constexpr std::string_view path = "fuzzed.vbn";
constexpr std::string_view companion = "companion.vbn";

void show(std::span<const FieldInfo> fields, std::span<const std::byte> record) {
    for (const FieldInfo& field : fields) require(fieldText(field, record).size() < 3 * field.width + 32);
}

/// The operations that know only the width, on every file that the program lists.
void readRaw(FileSystem& files, const RecordInfo& info) {
    const auto file = RawRecordFile::open(files, path, info.width);
    require(file.ok());
    const auto count = file->count();
    require(count.ok() && *count >= 0 && *count <= maxRecords);
    std::vector<std::byte> record(info.width);
    for (int number = 1; number <= *count; ++number) {
        require(file->read(number, record).ok());
        show(info.fields, record);
    }
    for (const int number : {-1, 0, maxRecords + 1}) require(!file->read(number, record));
    std::vector<std::byte> block(info.width * 3);
    for (int first = 1; first <= *count + 1; first += 3) {
        const auto got = file->readBlock(first, block);
        require(got.ok() && *got >= 0 && *got <= 3);
    }
}

void useRates(const TariffTable& table) {
    for (int row = 0; row < tariffRowCount; ++row) {
        const int found = table.find(table.grade(row));
        require(found >= 0 && found <= row);
        TariffTable other = table;
        other.set(row, table.mark(row), table.rates(row));
    }
}

/// The record file of a type: scanned, rewritten without every second record, scanned again.
template <class Record>
int scanned(FileSystem& files) {
    const auto file = RecordFile<Record>::open(files, path);
    require(file.ok());
    const auto count = file->count();
    require(count.ok() && file->size() == *count);
    int seen = 0;
    const auto done = file->scan([&](int number, const Record& record) {
        require(number == ++seen);
        if constexpr (std::is_same_v<Record, TariffTable>) useRates(record);
    });
    require(done.ok() && seen == *count);
    require(file->last().has_value() == (*count > 0));
    return seen;
}

template <class Record>
void useFile(FileSystem& files) {
    const int before = scanned<Record>(files);
    const auto done = rewrite<Record>(files, path, companion, [](int number, Record&) { return number % 2 == 1; });
    require(done.ok() && scanned<Record>(files) == (before + 1) / 2);
}

using Use = void (*)(FileSystem& files);
constexpr Use uses[] = {
    useFile<NameRecord>,       useFile<TariffTable>,      useFile<DatedTariffRow>,  useFile<SecretaryTariff>,
    useFile<ContribRates>,     useFile<NormalTariff>,     useFile<SpecialTariff>,   useFile<EmployeeRecord>,
    useFile<LatePeriodRecord>, useFile<MeirinRecord>,     useFile<RevMeirinRecord>, useFile<DuedateRecord>,
    useFile<MemberRecord>,     useFile<SubstituteRecord>, useFile<SegSufRecord>,    useFile<SosSegSufRecord>,
    useFile<SpecSufrRecord>,   useFile<SspecSufrRecord>,  useFile<RendiRecord>,     useFile<DivStRecord>,
    useFile<TprovRecord>,      useFile<PaymentRecord>,    useFile<MeirincRecord>,
};

}  // namespace
}  // namespace vorbano

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    vorbano::fuzzing::Input input(data, size);
    const std::uint8_t which = input.byte();
    vorbano::MemoryFileSystem files;
    vorbano::fuzzing::require(vorbano::writeWhole(files, vorbano::path, input.rest()).ok());
    const auto infos = vorbano::recordFiles();
    vorbano::readRaw(files, infos[which % infos.size()]);
    vorbano::uses[which % std::size(vorbano::uses)](files);
    return 0;
}
