#pragma once

// The files that hold the polling stations of one election, all in its folder. A station is no record of its own: a
// record is one person, and the station, its size and the tariff are repeated in each. Record 1 is the president of
// the first station. The files of the run-off are the same with the date of the run-off put in, 30 characters wide for
// the normal stations and 8 for the special ones.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// What every record begins with.
struct StationHead {
    Text<14> Tipo;  ///< type of the election, cut at 14: never to be compared with a whole name
    DateText DataEle;
    Integer Seggi;       ///< stations of the election; of the special ones, how many are to be entered
    Integer SonoSeggio;  ///< number of this station
};

/// What every record ends with.
struct StationPerson {
    Text<30> Cognome;
    Text<30> Nome;
    Text<60> Indirizzo;
    Text<10> Qualifica;  ///< the role: "Presidente", "Segretario" or "Scrutatore"
    Text<2> SiNo;        ///< took part: "SI" or "NO"
    Text<16> CodFisc;
    Currency Onorario;  ///< the fee; with a substitute each record holds its share
};

/// Seggi.vbn and Speciale.vbn, one record per member: by station, and within a station by place without gaps.
struct MemberRecord {
    StationHead station;
    Integer Composto;  ///< members of this station
    Text<30> Tariffa;  ///< type of election whose row of the tariff was applied
    Integer Ordine;    ///< place in the station, from 1
    StationPerson person;
};

/// SosSeggi.vbn and SosSpec.vbn, one record per substitute, tied to the member by (SonoSeggio, Sostituito) alone.
struct SubstituteRecord {
    StationHead station;
    Integer Sostituito;  ///< Ordine of the member who is replaced
    Integer Composto;
    Text<30> Tariffa;
    Integer Ordine;  ///< place in the list of the station, behind its members
    StationPerson person;
};

/// SegSuf.vbn and SpecSufr.vbn. They come from earlier data and are only read.
template <std::size_t DateWidth>
struct RunOffMemberRecord {
    StationHead station;
    Integer Composto;
    Text<DateWidth> Databall;  ///< date of the run-off
    Text<30> Tariffa;
    Integer Ordine;
    StationPerson person;
};

/// SosSegSuf.vbn and SspecSufr.vbn. They come from earlier data and are only read.
template <std::size_t DateWidth>
struct RunOffSubstituteRecord {
    StationHead station;
    Integer Sostituito;
    Integer Composto;
    Text<DateWidth> Databall;
    Text<30> Tariffa;
    Integer Ordine;
    StationPerson person;
};

inline constexpr std::size_t normalDateWidth = 30;
inline constexpr std::size_t specialDateWidth = 8;
using SegSufRecord = RunOffMemberRecord<normalDateWidth>;
using SpecSufrRecord = RunOffMemberRecord<specialDateWidth>;
using SosSegSufRecord = RunOffSubstituteRecord<normalDateWidth>;
using SspecSufrRecord = RunOffSubstituteRecord<specialDateWidth>;
static_assert(sizeof(StationHead) == 26 && sizeof(StationPerson) == 156);
static_assert(sizeof(MemberRecord) == 216 && sizeof(SubstituteRecord) == 218);
static_assert(sizeof(SegSufRecord) == 246 && sizeof(SosSegSufRecord) == 248);
static_assert(sizeof(SpecSufrRecord) == 224 && sizeof(SspecSufrRecord) == 226);

inline constexpr std::string_view seggiFile = "Seggi.vbn";
inline constexpr std::string_view sosSeggiFile = "SosSeggi.vbn";
inline constexpr std::string_view specialeFile = "Speciale.vbn";
inline constexpr std::string_view sosSpecFile = "SosSpec.vbn";
inline constexpr std::string_view segSufFile = "SegSuf.vbn";
inline constexpr std::string_view sosSegSufFile = "SosSegSuf.vbn";
inline constexpr std::string_view specSufrFile = "SpecSufr.vbn";
inline constexpr std::string_view sspecSufrFile = "SspecSufr.vbn";
/// Companions of the rewrites of Seggi.vbn, SosSeggi.vbn and SosSpec.vbn.
inline constexpr std::string_view seggiRevFile = "SeggiRev.vbn";
inline constexpr std::string_view revSosSeggiFile = "RevSosSeggi.vbn";
inline constexpr std::string_view revSosSpecFile = "RevSosSpec.vbn";

/// Which records have a field.
enum class StationFieldIn : std::uint8_t { all, substitutes, runOff };

struct StationField {
    std::string_view name;
    std::string_view memberScreen;      ///< control of the entry of normal stations
    std::string_view substituteScreen;  ///< control of the correction of normal stations
    std::size_t width;                  ///< 0 for the date of the run-off, which has two
    FieldType type;
    StationFieldIn in = StationFieldIn::all;
};
/// The fields of all station records, in their order.
inline constexpr std::array<StationField, 15> stationFields = {{
    {"Tipo", "Combo1", "Combo1", 14, FieldType::text},
    {"DataEle", "txtDataEle", "txtDataEle", 8, FieldType::date},
    {"Seggi", "txtSeggio", "txtSeggiSu", 2, FieldType::integer},
    {"SonoSeggio", "txtSonoSeggio", "txtSeggio", 2, FieldType::integer},
    {"Sostituito", "", "Label9", 2, FieldType::integer, StationFieldIn::substitutes},
    {"Composto", "txtComposto", "txtComposto", 2, FieldType::integer},
    {"Databall", "", "", 0, FieldType::text, StationFieldIn::runOff},
    {"Tariffa", "txtTariffe", "Combo2", 30, FieldType::text},
    {"Ordine", "Label3", "", 2, FieldType::integer},
    {"Cognome", "txtCompo1", "txtSostituto", 30, FieldType::text},
    {"Nome", "txtNome1", "txtNomeS", 30, FieldType::text},
    {"Indirizzo", "txtIndi1", "txtIndirizzo2", 60, FieldType::text},
    {"Qualifica", "txtQualifica1", "txtCompo", 10, FieldType::text},
    {"SiNo", "txtSiNo1", "txtSiNo", 2, FieldType::text},
    {"CodFisc", "txtCodFisc1", "txtFisc2", 16, FieldType::text},
}};
/// The last field of all of them.
inline constexpr StationField stationFee = {"Onorario", "txtOnor1", "txtImporto2", 8, FieldType::currency};

enum class StationPeople : std::uint8_t { members, substitutes };

/// The table of one record. A `dateWidth` makes it one of the run-off, which has no screen.
template <StationPeople People, std::size_t DateWidth = 0>
[[nodiscard]] consteval auto stationFieldTable() {
    constexpr bool substitutes = People == StationPeople::substitutes;
    constexpr bool runOff = DateWidth != 0;
    std::array<FieldInfo, 14 + (substitutes ? 1 : 0) + (runOff ? 1 : 0)> table{};
    std::size_t count = 0;
    std::size_t offset = 0;
    const auto put = [&](const StationField& field) {
        const std::size_t width = field.in == StationFieldIn::runOff ? DateWidth : field.width;
        const std::string_view screen = substitutes ? field.substituteScreen : field.memberScreen;
        table.at(count++) = {field.name, runOff ? std::string_view() : screen, offset, width, field.type};
        offset += width;
    };
    for (const StationField& field : stationFields) {
        const bool there = field.in == StationFieldIn::all ||
                           (field.in == StationFieldIn::substitutes && substitutes) ||
                           (field.in == StationFieldIn::runOff && runOff);
        if (there) put(field);
    }
    put(stationFee);
    return table;
}

inline constexpr auto memberFields = stationFieldTable<StationPeople::members>();
inline constexpr auto substituteFields = stationFieldTable<StationPeople::substitutes>();
inline constexpr auto segSufFields = stationFieldTable<StationPeople::members, normalDateWidth>();
inline constexpr auto sosSegSufFields = stationFieldTable<StationPeople::substitutes, normalDateWidth>();
inline constexpr auto specSufrFields = stationFieldTable<StationPeople::members, specialDateWidth>();
inline constexpr auto sspecSufrFields = stationFieldTable<StationPeople::substitutes, specialDateWidth>();

/// The table puts the fields where the record has them, and where they lie on file: `tariffa` to `onorario` are the
/// offsets of the fields behind the date of the run-off, which stand at the same distance in every file.
template <class Record>
[[nodiscard]] consteval bool stationLayout(std::span<const FieldInfo> fields, std::size_t tariffa,
                                           std::size_t onorario) {
    const auto at = [&](std::string_view name) {
        for (const FieldInfo& field : fields) {
            if (field.name == name) return field.offset;
        }
        return std::size_t{99'999};
    };
    const std::size_t person = offsetof(Record, person);
    return coversWhole(fields, sizeof(Record)) && at("SonoSeggio") == offsetof(StationHead, SonoSeggio) &&
           at("Composto") == offsetof(Record, Composto) && at("Tariffa") == offsetof(Record, Tariffa) &&
           at("Ordine") == offsetof(Record, Ordine) && at("Cognome") == person &&
           at("Nome") == person + offsetof(StationPerson, Nome) &&
           at("Indirizzo") == person + offsetof(StationPerson, Indirizzo) &&
           at("Qualifica") == person + offsetof(StationPerson, Qualifica) &&
           at("SiNo") == person + offsetof(StationPerson, SiNo) &&
           at("CodFisc") == person + offsetof(StationPerson, CodFisc) &&
           at("Onorario") == person + offsetof(StationPerson, Onorario) && at("Tariffa") == tariffa &&
           at("Onorario") == onorario;
}
static_assert(stationLayout<MemberRecord>(memberFields, 28, 208));
static_assert(stationLayout<SubstituteRecord>(substituteFields, 30, 210));
static_assert(stationLayout<SegSufRecord>(segSufFields, 58, 238));
static_assert(stationLayout<SosSegSufRecord>(sosSegSufFields, 60, 240));
static_assert(stationLayout<SpecSufrRecord>(specSufrFields, 36, 216));
static_assert(stationLayout<SspecSufrRecord>(sspecSufrFields, 38, 218));

}  // namespace vorbano
