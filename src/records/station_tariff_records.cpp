#include "records/station_tariff_records.h"

namespace vorbano {

namespace {

constexpr std::array<std::string_view, 3> roleNames = {"Presidente", "Segretario", "Scrutatore"};

template <class Row, class Amount>
Result<std::optional<Currency>> lookUp(FileSystem& files, std::string_view path, std::string_view type,
                                       Amount&& amount) {
    const auto file = RecordFile<Row>::open(files, path);
    if (!file) return file.error();
    const auto found = findTariff(*file, type);
    if (!found) return found.error();
    if (!*found) return std::optional<Currency>();
    return std::optional<Currency>(amount((*found)->row));
}

}  // namespace

std::optional<StationRole> stationRole(std::string_view qualifica) {
    for (std::size_t at = 0; at < roleNames.size(); ++at) {
        if (roleNames[at] == trim(qualifica)) return static_cast<StationRole>(at);
    }
    return std::nullopt;
}

std::string_view nameOf(StationRole role) { return roleNames[static_cast<std::size_t>(role)]; }

std::optional<Currency> feeOf(const NormalTariff& row, StationRole role) {
    return row.amounts[static_cast<std::size_t>(role)];
}

std::optional<Currency> feeOf(const SpecialTariff& row, StationRole role) {
    switch (role) {
        case StationRole::presidente:
            return row.amounts.front();
        case StationRole::segretario:
            return std::nullopt;
        case StationRole::scrutatore:
            return row.amounts.back();
    }
    return std::nullopt;
}

Result<std::optional<Currency>> stationFeeFor(FileSystem& files, StationKind kind, std::string_view type,
                                              StationRole role) {
    const auto fee = [role](const auto& row) { return feeOf(row, role); };
    return kind == StationKind::normal ? lookUp<NormalTariff>(files, tarsegFile, type, fee)
                                       : lookUp<SpecialTariff>(files, tarSpecFile, type, fee);
}

Result<std::optional<Currency>> stationQuotaFor(FileSystem& files, StationKind kind, std::string_view type,
                                                StationRole role) {
    const auto quota = [role](const auto& row) { return quotaOf(row, role); };
    return kind == StationKind::normal ? lookUp<NormalTariff>(files, tarmagFile, type, quota)
                                       : lookUp<SpecialTariff>(files, tarmagspFile, type, quota);
}

}  // namespace vorbano
