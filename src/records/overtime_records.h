#pragma once

// The files that hold the overtime of one election, all in its folder. The file of the employees is named after the
// date and has no header: record 1 is the first employee. What belongs to the whole election is either repeated in
// every employee record (the pools) or kept in the one record of Meirin.vbn.

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

#include "storage/fields.h"
#include "storage/record_fields.h"

namespace vorbano {

/// Kinds of overtime hour, always in this order: "Diurne Feriali", "Nott. o Fest", "Nott. Fest".
inline constexpr int hourKinds = 3;
using HoursByKind = std::array<Integer, hourKinds>;

/// The six figures that every employee record repeats, in hours but for the last two.
struct Pools {
    Integer MonteOre;  ///< hours per employee and month
    Integer MoUtil;    ///< hours used in the election, cumulative; set by the liquidation
    Integer MoGlob;    ///< MonteOre times the number of employees
    Integer Globo;     ///< sum of the pools of the periods
    Integer SonoDip;   ///< progressive number of this employee, from 1
    Integer NumDip;    ///< number of employees of the calculation
};

/// Rates, percentages and amounts of an employee. A percentage is the number itself (8,50 is 8.5 percent). Rates and
/// percentages are kept with every employee, so that later parameters do not touch a stored election.
struct Pay {
    std::array<Currency, hourKinds> rates;  ///< per hour
    Currency Dovuto;                        ///< amount due
    Currency AliCpStato, CpStato;           ///< contribution at the charge of the body
    Currency AliIrap, Irap;
    Currency TotaleSpesa;        ///< CpStato + Irap
    Currency AliCpDip, CpDip;    ///< contribution of the employee
    Currency AliFonCre, FonCre;  ///< credit fund
    Currency TotaleContr;        ///< CpDip + FonCre
};
static_assert(sizeof(Pools) == 12 && sizeof(Pay) == 112);

/// One of the first three periods of an employee. A period left out holds the excluded mark in both dates and zeros.
struct PeriodBlock {
    DateText from;
    DateText to;
    HoursByKind authorised;
    HoursByKind paid;   ///< 0 until the liquidation
    Integer totalPaid;  ///< 0 until the liquidation
};

/// "<date>.vbn", one record per employee, 301 bytes.
struct EmployeeRecord {
    Pools pools;
    Text<60> name;  ///< "Cognome e Nome"
    std::array<PeriodBlock, 3> periods;
    Integer totAut;        ///< hours authorised in all periods
    HoursByKind executed;  ///< 0 until the liquidation
    Integer totEseg;
    Text<7> lblCat;    ///< grade, trimmed before it is cut: "G    B6"
    Text<10> lblCat2;  ///< "-"
    Pay pay;
};

/// Quartum.vbn and Pentium.vbn: periods four and five of elections before 2014, numbered as the employee file.
struct LatePeriodRecord {
    Pools pools;
    Text<60> name;
    DateText from;
    DateText to;
    HoursByKind authorised;
    HoursByKind paid;
    Integer totalPaid;
    Integer totalAuthorised;
    HoursByKind executed;
    Integer totalExecuted;
    Text<7> lblCat;
    Text<10> lblCat2;
    Pay pay;
};

/// Meirin.vbn: exactly one record, the limits of the periods and the payment data of the election.
struct MeirinRecord {
    Currency irpef;
    DateText inailDate;
    Currency inail;
    std::array<Integer, 3> average;  ///< individual average limits of periods 1 to 3, hours
    std::array<Integer, 3> pool;     ///< pools of periods 1 to 3, hours
    std::array<Integer, 3> state;    ///< 0 authorisation, 1 liquidation
    Integer average4, pool4, state4;
    Currency inailUno;  ///< INAIL of the liquidation, first
    Integer average5, pool5, state5;
    Currency inps;  ///< from here on not kept by the removal of an employee
    DateText inpsDate;
    Currency inailDue;
};

/// RevMeirin.vbn, the companion of Meirin.vbn in the removal of an employee: the first 62 bytes of its record.
/// Deliberately no more, so that a removal ends the INPS amount, its date and the second INAIL amount.
struct RevMeirinRecord {
    std::array<std::byte, 62> kept;
};
static_assert(sizeof(RevMeirinRecord) == offsetof(MeirinRecord, inps));

/// Duedate.vbn: exactly one record, the dates of the two acts of the authorisation.
struct DuedateRecord {
    DateText decreto;
    DateText determina;
};

inline constexpr std::string_view meirinFile = "Meirin.vbn";
inline constexpr std::string_view duedateFile = "Duedate.vbn";
inline constexpr std::string_view quartumFile = "Quartum.vbn";
inline constexpr std::string_view pentiumFile = "Pentium.vbn";
/// Companions in a removal; Reverse.vbn in every rewrite of the employees.
inline constexpr std::string_view reverseFile = "Reverse.vbn";
inline constexpr std::string_view revMeirinFile = "RevMeirin.vbn";
inline constexpr std::string_view rQuartumFile = "RQuartum.vbn";
inline constexpr std::string_view rPentiumFile = "RPentium.vbn";
/// Companions in every other rewrite of the late periods: those of a removal tell, when they are found without
/// Reverse.vbn, that it must be brought to its end.
inline constexpr std::string_view nQuartumFile = "NQuartum.vbn";
inline constexpr std::string_view nPentiumFile = "NPentium.vbn";

inline constexpr FieldInfo employeeFields[] = {
    {"MonteOre", "txtMonteOre", 0, 2, FieldType::integer},
    {"MoUtil", "txtMoUtil", 2, 2, FieldType::integer},
    {"MoGlob", "txtMoGlob", 4, 2, FieldType::integer},
    {"Globo", "txtGlobo", 6, 2, FieldType::integer},
    {"SonoDip", "txtSonoDip", 8, 2, FieldType::integer},
    {"NumDip", "txtNumDip", 10, 2, FieldType::integer},
    {"Nome", "txtNameDip", 12, 60, FieldType::text},
    {"PrimoDal", "txtPrimoDal", 72, 8, FieldType::date},
    {"PrimoAl", "txtPrimoAl", 80, 8, FieldType::date},
    {"AutFer1Per", "txtAutFer1Per", 88, 2, FieldType::integer},
    {"AutFes1Per", "txtAutFes1Per", 90, 2, FieldType::integer},
    {"Nf1Per", "txtNf1Per", 92, 2, FieldType::integer},
    {"Pag1Df", "txtPag1Df", 94, 2, FieldType::integer},
    {"Pag1Nf", "txtPag1Nf", 96, 2, FieldType::integer},
    {"Pag1NeF", "txtPag1NeF", 98, 2, FieldType::integer},
    {"Totale1", "txtTotale1", 100, 2, FieldType::integer},
    {"SecDal", "txtSecDal", 102, 8, FieldType::date},
    {"SecAl", "txtSecAl", 110, 8, FieldType::date},
    {"AutFer2Per", "txtAutFer2Per", 118, 2, FieldType::integer},
    {"AutFes2Per", "txtAutFes2Per", 120, 2, FieldType::integer},
    {"Nf2Per", "txtNf2Per", 122, 2, FieldType::integer},
    {"Pag2Df", "txtPag2Df", 124, 2, FieldType::integer},
    {"Pag2Nf", "txtPag2Nf", 126, 2, FieldType::integer},
    {"Pag2NeF", "txtPag2NeF", 128, 2, FieldType::integer},
    {"Totale2", "txtTotale2", 130, 2, FieldType::integer},
    {"TerDal", "txtTerDal", 132, 8, FieldType::date},
    {"TerAl", "txtTerAl", 140, 8, FieldType::date},
    {"AutFer3Per", "txtAutFer3Per", 148, 2, FieldType::integer},
    {"AutFes3Per", "txtAutFes3Per", 150, 2, FieldType::integer},
    {"Nf3Per", "txtNf3Per", 152, 2, FieldType::integer},
    {"Pag3Df", "txtPag3Df", 154, 2, FieldType::integer},
    {"Pag3Nf", "txtPag3Nf", 156, 2, FieldType::integer},
    {"Pag3NeF", "txtPag3NeF", 158, 2, FieldType::integer},
    {"Totale3", "txtTotale3", 160, 2, FieldType::integer},
    {"TotAut", "txtTotAut", 162, 2, FieldType::integer},
    {"EsegDf", "txtEsegDf", 164, 2, FieldType::integer},
    {"EsegNof", "txtEsegNof", 166, 2, FieldType::integer},
    {"EsegNef", "txtEsegNef", 168, 2, FieldType::integer},
    {"TotEseg", "txtTotEseg", 170, 2, FieldType::integer},
    {"Categoria", "lblCat", 172, 7, FieldType::text},
    {"Livello", "lblCat2", 179, 10, FieldType::text},
    {"CompDf", "txtCompDf", 189, 8, FieldType::currency},
    {"CompNof", "txtCompNof", 197, 8, FieldType::currency},
    {"CompNef", "txtCompNef", 205, 8, FieldType::currency},
    {"Dovuto", "txtDovuto", 213, 8, FieldType::currency},
    {"AliCpStato", "Label37", 221, 8, FieldType::currency},
    {"CpStato", "txtCpStato", 229, 8, FieldType::currency},
    {"AliIrap", "Label38", 237, 8, FieldType::currency},
    {"Irap", "txtIrap", 245, 8, FieldType::currency},
    {"TotaleSpesa", "txtTotaleSpesa", 253, 8, FieldType::currency},
    {"AliCpDip", "Label43", 261, 8, FieldType::currency},
    {"CpDip", "txtCpDip", 269, 8, FieldType::currency},
    {"AliFonCre", "Label47", 277, 8, FieldType::currency},
    {"FonCre", "txtFonCre", 285, 8, FieldType::currency},
    {"TotaleContr", "txtTotaleContr", 293, 8, FieldType::currency},
};
static_assert(coversWhole(employeeFields, 301) && sizeof(EmployeeRecord) == 301);
static_assert(offsetof(EmployeeRecord, name) == 12 && offsetof(EmployeeRecord, periods) == 72 &&
              sizeof(PeriodBlock) == 30 && offsetof(PeriodBlock, authorised) == 16 &&
              offsetof(PeriodBlock, paid) == 22 && offsetof(PeriodBlock, totalPaid) == 28);
static_assert(offsetof(EmployeeRecord, totAut) == 162 && offsetof(EmployeeRecord, executed) == 164 &&
              offsetof(EmployeeRecord, totEseg) == 170 && offsetof(EmployeeRecord, lblCat) == 172 &&
              offsetof(EmployeeRecord, lblCat2) == 179 && offsetof(EmployeeRecord, pay) == 189);
static_assert(offsetof(Pools, MoUtil) == 2 && offsetof(Pools, MoGlob) == 4 && offsetof(Pools, Globo) == 6 &&
              offsetof(Pools, SonoDip) == 8 && offsetof(Pools, NumDip) == 10);
static_assert(offsetof(Pay, Dovuto) == 213 - 189 && offsetof(Pay, AliCpStato) == 221 - 189 &&
              offsetof(Pay, CpStato) == 229 - 189 && offsetof(Pay, AliIrap) == 237 - 189 &&
              offsetof(Pay, Irap) == 245 - 189 && offsetof(Pay, TotaleSpesa) == 253 - 189 &&
              offsetof(Pay, AliCpDip) == 261 - 189 && offsetof(Pay, CpDip) == 269 - 189 &&
              offsetof(Pay, AliFonCre) == 277 - 189 && offsetof(Pay, FonCre) == 285 - 189 &&
              offsetof(Pay, TotaleContr) == 293 - 189);

inline constexpr FieldInfo quartumFields[] = {
    {"MonteOre", "txtMonteOre", 0, 2, FieldType::integer},
    {"MoUtil", "txtMoUtil", 2, 2, FieldType::integer},
    {"MoGlob", "txtMoGlob", 4, 2, FieldType::integer},
    {"Globo", "txtGlobo", 6, 2, FieldType::integer},
    {"SonoDip", "txtSonoDip", 8, 2, FieldType::integer},
    {"NumDip", "txtNumDip", 10, 2, FieldType::integer},
    {"Nome", "txtNameDip", 12, 60, FieldType::text},
    {"QuartusDal", "txtQuartusDal", 72, 8, FieldType::date},
    {"QuartusAl", "txtQuartusAl", 80, 8, FieldType::date},
    {"AutFer4Per", "txtAutFer4Per", 88, 2, FieldType::integer},
    {"AutFes4Per", "txtAutFes4Per", 90, 2, FieldType::integer},
    {"Nf4Per", "txtNf4Per", 92, 2, FieldType::integer},
    {"Pag4Df", "txtPag4Df", 94, 2, FieldType::integer},
    {"Pag4Nf", "txtPag4Nf", 96, 2, FieldType::integer},
    {"Pag4NeF", "txtPag4NeF", 98, 2, FieldType::integer},
    {"Totale4", "txtTotale4", 100, 2, FieldType::integer},
    {"TotAut", "txtTotAut", 102, 2, FieldType::integer},
    {"EsegDf", "txtEsegDf", 104, 2, FieldType::integer},
    {"EsegNof", "txtEsegNof", 106, 2, FieldType::integer},
    {"EsegNef", "txtEsegNef", 108, 2, FieldType::integer},
    {"TotEseg", "txtTotEseg", 110, 2, FieldType::integer},
    {"Categoria", "lblCat", 112, 7, FieldType::text},
    {"Livello", "lblCat2", 119, 10, FieldType::text},
    {"CompDf", "txtCompDf", 129, 8, FieldType::currency},
    {"CompNof", "txtCompNof", 137, 8, FieldType::currency},
    {"CompNef", "txtCompNef", 145, 8, FieldType::currency},
    {"Dovuto", "txtDovuto", 153, 8, FieldType::currency},
    {"AliCpStato", "Label37", 161, 8, FieldType::currency},
    {"CpStato", "txtCpStato", 169, 8, FieldType::currency},
    {"AliIrap", "Label38", 177, 8, FieldType::currency},
    {"Irap", "txtIrap", 185, 8, FieldType::currency},
    {"TotaleSpesa", "txtTotaleSpesa", 193, 8, FieldType::currency},
    {"AliCpDip", "Label43", 201, 8, FieldType::currency},
    {"CpDip", "txtCpDip", 209, 8, FieldType::currency},
    {"AliFonCre", "Label47", 217, 8, FieldType::currency},
    {"FonCre", "txtFonCre", 225, 8, FieldType::currency},
    {"TotaleContr", "txtTotaleContr", 233, 8, FieldType::currency},
};
/// Pentium.vbn: the layout of Quartum.vbn; only the names of the period's fields differ.
inline constexpr auto pentiumFields = [] {
    std::array<FieldInfo, std::size(quartumFields)> fields{};
    std::copy(std::begin(quartumFields), std::end(quartumFields), fields.begin());
    constexpr std::string_view names[][2] = {
        {"PentiumDal", "txtPentiumDal"}, {"PentiumAl", "txtPentiumAl"}, {"AutFer5Per", "txtAutFer5Per"},
        {"AutFes5Per", "txtAutFes5Per"}, {"Nf5Per", "txtNf5Per"},       {"Pag5Df", "txtPag5Df"},
        {"Pag5Nf", "txtPag5Nf"},         {"Pag5NeF", "txtPag5NeF"},     {"Totale5", "txtTotale5"}};
    for (std::size_t at = 0; at < std::size(names); ++at) {
        fields[7 + at].name = names[at][0];
        fields[7 + at].screenName = names[at][1];
    }
    return fields;
}();
static_assert(coversWhole(quartumFields, 241) && sizeof(LatePeriodRecord) == 241);
static_assert(offsetof(LatePeriodRecord, from) == 72 && offsetof(LatePeriodRecord, to) == 80 &&
              offsetof(LatePeriodRecord, authorised) == 88 && offsetof(LatePeriodRecord, totalPaid) == 100 &&
              offsetof(LatePeriodRecord, totalAuthorised) == 102 && offsetof(LatePeriodRecord, totalExecuted) == 110 &&
              offsetof(LatePeriodRecord, lblCat) == 112 && offsetof(LatePeriodRecord, lblCat2) == 119 &&
              offsetof(LatePeriodRecord, pay) == 129);

inline constexpr FieldInfo meirinFields[] = {
    {"Irpef", "txtIrpef", 0, 8, FieldType::currency},    {"DataInail", "insdatainail", 8, 8, FieldType::date},
    {"Inail", "txtInail", 16, 8, FieldType::currency},   {"Medio1", "Label52", 24, 2, FieldType::integer},
    {"Medio2", "Label53", 26, 2, FieldType::integer},    {"Medio3", "Label54", 28, 2, FieldType::integer},
    {"Mensile1", "Label56", 30, 2, FieldType::integer},  {"Mensile2", "Label65", 32, 2, FieldType::integer},
    {"Mensile3", "Label66", 34, 2, FieldType::integer},  {"Stato1", "lblPrimo", 36, 2, FieldType::integer},
    {"Stato2", "lblSecondo", 38, 2, FieldType::integer}, {"Stato3", "lblTerzo", 40, 2, FieldType::integer},
    {"Medio4", "Label108", 42, 2, FieldType::integer},   {"Mensile4", "Label106", 44, 2, FieldType::integer},
    {"Stato4", "lblQuarto", 46, 2, FieldType::integer},  {"InailUno", "txtInailUno", 48, 8, FieldType::currency},
    {"Medio5", "Label123", 56, 2, FieldType::integer},   {"Mensile5", "Label125", 58, 2, FieldType::integer},
    {"Stato5", "lblQuinto", 60, 2, FieldType::integer},  {"Inps", "txtInps", 62, 8, FieldType::currency},
    {"DataInps", "insdatainps", 70, 8, FieldType::date}, {"InailDue", "txtInailDue", 78, 8, FieldType::currency},
};
static_assert(coversWhole(meirinFields, 86) && sizeof(MeirinRecord) == 86);
static_assert(offsetof(MeirinRecord, average) == 24 && offsetof(MeirinRecord, pool) == 30 &&
              offsetof(MeirinRecord, state) == 36 && offsetof(MeirinRecord, average4) == 42 &&
              offsetof(MeirinRecord, inailUno) == 48 && offsetof(MeirinRecord, average5) == 56 &&
              offsetof(MeirinRecord, inps) == 62 && offsetof(MeirinRecord, inailDue) == 78);

inline constexpr FieldInfo duedateFields[] = {
    {"DataDecreto", "txtDataDecreto", 0, 8, FieldType::date},
    {"DataDetermina", "txtDataDetermina", 8, 8, FieldType::date},
};
static_assert(coversWhole(duedateFields, 16) && sizeof(DuedateRecord) == 16);

}  // namespace vorbano
