#include "fiscalcode/codice_fiscale.h"

#include <algorithm>
#include <cstddef>

namespace vorbano {

namespace {

constexpr std::string_view vowels = "AEIOU";
constexpr std::string_view consonants = "BCDFGHJKLMNPQRSTVWXYZ";
constexpr std::string_view months = "ABCDEHLMPRST";
constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::size_t partLength = 3;

/// Each pair of characters is worth the number of its pair. A character that stands twice counts where it stands first.
constexpr std::string_view oddPlaces = "B1A0KKPPLLC2QQD3RRE4VVOOSSF5TTG6UUH7MMI8NNJ9WWZZYYXX";
constexpr std::string_view evenPlaces = "A0B1C2D3E4F5G6H7I8J9KKLLMMNNOOPPQQRRSSTTUUVVWWXXYYZZ";
/// What a character of no pair is worth. Only a place code with a small letter or a sign leads here, and the code then
/// ends with a wrong letter without a word; deliberately so, as codes already given out were made.
constexpr int worthOfNoPair = 16383;

struct Letters {
    std::string consonants;
    std::string vowels;
};

Letters lettersOf(std::string_view text) {
    Letters letters;
    for (char letter : text) {
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
        if (vowels.find(letter) != std::string_view::npos) letters.vowels += letter;
        if (consonants.find(letter) != std::string_view::npos) letters.consonants += letter;
    }
    return letters;
}

/// Consonants first, then vowels, then "X".
std::string threeOf(const Letters& letters) {
    std::string part = letters.consonants + letters.vowels;
    part.resize(std::max(part.size(), partLength), 'X');
    return part.substr(0, partLength);
}

std::string partOfName(std::string_view name) {
    const Letters letters = lettersOf(name);
    const std::string& own = letters.consonants;
    return own.size() > partLength ? std::string{own[0], own[2], own[3]} : threeOf(letters);
}

std::string twoDigits(unsigned number) {
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

char controlLetter(std::string_view code) {
    std::size_t sum = 0;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const std::size_t place = (at % 2 == 0 ? oddPlaces : evenPlaces).find(code[at]);
        sum += place == std::string_view::npos ? worthOfNoPair : place / 2;
    }
    return alphabet[sum % alphabet.size()];
}

}  // namespace

std::string CalcoloCodFis(std::string_view cognome, std::string_view nome, std::chrono::year_month_day nascita,
                          std::string_view sesso, std::string_view codiceLuogo) {
    const bool woman = sesso == "F" || sesso == "f";
    const unsigned day = static_cast<unsigned>(nascita.day()) + (woman ? 40U : 0U);
    std::string code = threeOf(lettersOf(cognome)) + partOfName(nome);
    code += twoDigits(static_cast<unsigned>(static_cast<int>(nascita.year())) % 100);
    code += months[static_cast<unsigned>(nascita.month()) - 1];
    code += twoDigits(day);
    code += codiceLuogo;
    return code + controlLetter(code);
}

}  // namespace vorbano
