#include "parameters/election_dates.h"

#include <string_view>

namespace vorbano {

namespace {

std::string_view yearIn(std::string_view date) { return date.substr(date.size() < 2 ? 0 : date.size() - 2); }

std::string twoDigits(int year) {
    const int ofCentury = year % 100;
    return {static_cast<char>('0' + ofCentury / 10), static_cast<char>('0' + ofCentury % 10)};
}

}  // namespace

std::vector<std::string> datesOnOffer(std::vector<std::string> dates, std::optional<int> year) {
    std::erase_if(dates, [&](const std::string& date) {
        const std::string_view yy = yearIn(date);
        return yy < "04" || yy > "90" || (year && yy != twoDigits(*year));
    });
    return dates;
}

}  // namespace vorbano
