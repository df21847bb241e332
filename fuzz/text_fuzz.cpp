// Any bytes as what a clerk types into a field or a record file holds: as a number, an amount, a date, a path, a name
// of an election, a text of code page 1252.

#include <cstdint>
#include <string>
#include <string_view>

#include "fuzzing.h"
#include "scenario/line_scanner.h"
#include "storage/codepage.h"
#include "storage/dates.h"
#include "storage/election.h"
#include "storage/fields.h"
#include "storage/memory_file_system.h"
#include "storage/numbers.h"

namespace vorbano {
namespace {

using fuzzing::require;

void asNumber(std::string_view text) {
    static_cast<void>(plainScan(text));
    static_cast<void>(wholeScan(text));
    static_cast<void>(toInteger(text));
    static_cast<void>(amountOrZero(text));
    const auto amount = toCurrency(text);
    if (!amount) return;
    for (const Mask mask : {Mask::amount, Mask::percent, Mask::digits, Mask::whole}) {
        require(format(*amount, mask).size() < 64);
    }
    // What is shown reads back as what was shown.
    if (const auto again = toCurrency(format(*amount, Mask::amount))) {
        require(format(*again, Mask::amount) == format(*amount, Mask::amount));
    }
    static_cast<void>(payFor(INT16_MAX, *amount));
    static_cast<void>(percentOf(*amount, *amount));
    static_cast<void>(cents(*amount));
}

void asDate(std::string_view text) {
    const std::string once = reformatDate(text);
    require(reformatDate(once) == once);
    if (const auto date = parseDate(text)) require(date->ok() && parseDate(dateText(*date)).has_value());
    static_cast<void>(daysBetween(text, "09-06-24"));
    static_cast<void>(isExcluded(text));
}

void asText(std::string_view text) {
    const std::string kept = fromCodepage(text);
    require(isUtf8(kept));
    require(fromCodepage(toCodepage(kept)) == kept);
    if (isUtf8(text)) require(isUtf8(upperCase(text)) && isUtf8(fromCodepage(toCodepage(text))));
    Text<8> field{text};
    require(isUtf8(field.whole()) && field.trimmed().size() <= field.whole().size());
    require(trim(trimRight(text)) == trim(text));
}

/// No name leaves the root, and what it makes is found again under it.
void asPath(std::string_view text) {
    MemoryFileSystem files;
    require(files.makeFolder("Elezioni").ok());
    const std::string path(text);
    if (const auto names = splitPath(path)) {
        for (const std::string& name : *names) require(name != ".." && name != "." && !name.empty());
    }
    if (files.makeFolder(path)) require(files.list(path).ok());
    const Election election{path, path};
    if (makeElectionFolder(files, election)) {
        const auto folder = election.folder();
        require(folder.ok() && files.list(*folder).ok());
        require(election.yearOfCentury() > -100);
        for (int period = 1; period <= maxPeriods; ++period) {
            static_cast<void>(election.hasPeriod(period, PeriodRule::modDate));
        }
    }
    static_cast<void>(findElectionType(text));
}

}  // namespace
}  // namespace vorbano

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    vorbano::asNumber(text);
    vorbano::asDate(text);
    vorbano::asText(text);
    vorbano::asPath(text);
    return 0;
}
