#include "random/vocabulary.h"

#include <array>
#include <chrono>

#include "storage/dates.h"

namespace vorbano::test {

namespace {

using Words = std::string (*)(const Election& election, Chance& chance);

std::string written(std::chrono::sys_days day, Chance& chance) {
    const Date date(day);
    const auto number = [](unsigned value) { return std::to_string(value); };
    const std::string text = dateText(date);
    switch (chance.below(5)) {
        case 0:
            return number(static_cast<unsigned>(date.day())) + "/" + number(static_cast<unsigned>(date.month())) + "/" +
                   text.substr(6);
        case 1:
            return text.substr(0, 2) + "/" + text.substr(3, 2) + "/" + std::to_string(static_cast<int>(date.year()));
        default:
            return text;
    }
}

std::string dateNear(const Election& election, Chance& chance) {
    if (chance.percent(8)) return "//";
    const auto day =
        parseDate(election.date).value_or(Date(std::chrono::year(2024), std::chrono::month(6), std::chrono::day(9)));
    return written(std::chrono::sys_days(day) + std::chrono::days(chance.below(90) - 60), chance);
}

std::string electionDate(const Election& election, Chance& chance) {
    if (chance.percent(10)) return dateNear(election, chance);
    const auto day = parseDate(election.date);
    return day && chance.percent(30) ? written(std::chrono::sys_days(*day), chance) : election.date;
}

std::string birthDate(const Election&, Chance& chance) {
    return written(std::chrono::sys_days(
                       Date(std::chrono::year(1940 + chance.below(70)), std::chrono::month(1), std::chrono::day(1))) +
                       std::chrono::days(chance.below(365)),
                   chance);
}

std::string person(const Election&, Chance& chance) {
    constexpr std::array names = {"ROSSI MARIO",      "rossi mario",    "De Lucà Nicolò", "D'AMBROSIO ÀÈÌÒÙ", "Bianchi",
                                  "VERDI ANNA MARIA", "  blank before", "roma",           "CASTRO",           "a"};
    return chance.oneOf(names);
}

std::string smallNumber(const Election&, Chance& chance) {
    return std::to_string(chance.percent(80) ? chance.below(9) : chance.below(400));
}

std::string amount(const Election&, Chance& chance) {
    const std::string whole = std::to_string(chance.below(chance.percent(70) ? 100 : 20000));
    return chance.percent(60) ? whole + "," + std::to_string(chance.below(100)) : whole;
}

std::string fiscalCode(const Election&, Chance& chance) {
    constexpr std::array codes = {"RSSMRA80A01H501U", "rssmra80a01h501u", "RSSMRA80A01H501X", "RSSMRA80A01H5", "X",
                                  "BNCNNA75D55F205T"};
    return chance.oneOf(codes);
}

/// What nobody means to type, and somebody does.
std::string anything(const Election& election, Chance& chance) {
    constexpr std::array strange = {"",
                                    " ",
                                    ".",
                                    ",",
                                    "//",
                                    "//      ",
                                    "-",
                                    "../..",
                                    "31/02/24",
                                    "9.6.24",
                                    "99-99-99",
                                    "00-00-00",
                                    "29-02-23",
                                    "1/1/1",
                                    "-5",
                                    "+3",
                                    "12,5",
                                    "1.234,56",
                                    "1,2,3",
                                    "32767",
                                    "32768",
                                    "99999",
                                    "-32768",
                                    "2147483648",
                                    "1e5",
                                    "0,005",
                                    "€ 12",
                                    "à è ì",
                                    "ßœŸ",
                                    "Жуков",
                                    "👍",
                                    "C:\\x",
                                    "Elezioni/",
                                    "NUL",
                                    "a\"b'c",
                                    "<b>&amp;",
                                    "{{Nome}}",
                                    "%s%n",
                                    "1234567890123456",
                                    "922337203685477,58",
                                    "900000000000000",
                                    "'; DROP"};
    if (chance.percent(6)) return std::string(static_cast<std::size_t>(200 + chance.below(3000)), 'X');
    if (chance.percent(4)) return "una riga\ne\tun'altra\r\x01\x7F";
    if (chance.percent(10)) return birthDate(election, chance);
    return chance.oneOf(strange);
}

struct Habit {
    std::string_view part;  ///< of the field's name
    Words words;
};

/// The first row whose part stands in the name holds.
constexpr std::array habits = {
    Habit{"DataEle", electionDate}, Habit{"Nasc", birthDate},      Habit{"Data", dateNear},
    Habit{"data", dateNear},        Habit{"Unoal", dateNear},      Habit{"Dueal", dateNear},
    Habit{"Treal", dateNear},       Habit{"dal", dateNear},        Habit{"Fisc", fiscalCode},
    Habit{"NumDip", smallNumber},   Habit{"SonoDip", smallNumber}, Habit{"Seggi", smallNumber},
    Habit{"numero", smallNumber},   Habit{"Compos", smallNumber},  Habit{"Nome", person},
    Habit{"Nomin", person},         Habit{"Name", person},         Habit{"Cognome", person},
    Habit{"Ente", person},          Habit{"Sostituto", person},    Habit{"Indi", person},
    Habit{"Luogo", person},         Habit{"Compo1", person},
};

}  // namespace

std::vector<Election> storedElections(FileSystem& files) {
    std::vector<Election> stored;
    for (const std::string& type : TipoElezioni(files)) {
        for (const std::string& date : DataEle(files, type)) stored.push_back({type, date});
    }
    return stored;
}

Election someElection(const std::vector<Election>& stored, Chance& chance) {
    if (!stored.empty() && chance.percent(85)) return chance.oneOf(stored);
    constexpr std::array dates = {"09-06-24", "12-06-22", "25-05-14", "26-05-13", "06-05-12", "15-03-99"};
    return {std::string(chance.oneOf(electionTypes).name), chance.oneOf(dates)};
}

std::string wordsFor(std::string_view field, const Election& election, Chance& chance) {
    if (chance.percent(12)) return anything(election, chance);
    for (const Habit& habit : habits) {
        if (field.find(habit.part) != std::string_view::npos) return habit.words(election, chance);
    }
    return chance.percent(50) ? smallNumber(election, chance) : amount(election, chance);
}

}  // namespace vorbano::test
