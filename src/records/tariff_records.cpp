#include "records/tariff_records.h"

#include <algorithm>
#include <cstring>
#include <list>
#include <vector>

namespace vorbano {

namespace {

constexpr const TariffRow& layoutOf(int row) { return tariffRows[static_cast<std::size_t>(row)]; }

void put(char* into, std::size_t width, std::string_view utf8) {
    const std::string ansi = toCodepage(utf8);
    for (std::size_t at = 0; at < width; ++at) into[at] = at < ansi.size() ? ansi[at] : ' ';
}

/// The names of fields are made once and live as long as the program.
class FieldTable {
  public:
    void add(std::string name, std::string screenName, std::size_t width, FieldType type) {
        const std::string& kept = names_.emplace_back(std::move(name));
        const std::string& keptScreen = names_.emplace_back(std::move(screenName));
        fields_.push_back({kept, keptScreen, at_, width, type});
        at_ += width;
    }
    void addRates(const std::string& name, const std::string& stem) {
        for (const char* kind : {"Day", "Fn", "Nf"})
            add(name + kind, stem + kind, sizeof(Currency), FieldType::currency);
    }
    [[nodiscard]] std::span<const FieldInfo> fields() const { return fields_; }

  private:
    std::list<std::string> names_;
    std::vector<FieldInfo> fields_;
    std::size_t at_ = 0;
};

FieldTable makeTariffFields() {
    FieldTable table;
    for (const TariffRow& row : tariffRows) {
        const std::string key(row.key);
        table.add(key + "Grade", "", row.gradeWidth, FieldType::text);
        table.add(key + "Mark", "", row.markWidth, FieldType::text);
        table.addRates(key, "txt" + key);
    }
    return table;
}

FieldTable makeSecretaryFields() {
    FieldTable table;
    for (const SecretaryRowInfo& row : secretaryRows) {
        const std::string stem(row.stem);
        const std::string name = stem.substr(3);
        table.add(name + "Caption", "", Text<70>::width, FieldType::text);
        table.addRates(name, stem);
    }
    return table;
}

}  // namespace

std::string TariffTable::grade(int row) const {
    const TariffRow& at = layoutOf(row);
    return fromCodepage({bytes_.data() + at.gradeAt, at.gradeWidth});
}

std::string TariffTable::mark(int row) const {
    const TariffRow& at = layoutOf(row);
    return std::string(trim(fromCodepage({bytes_.data() + at.markAt(), at.markWidth})));
}

Rates TariffTable::rates(int row) const {
    Rates rates;
    std::memcpy(&rates, bytes_.data() + layoutOf(row).ratesAt(), sizeof rates);
    return rates;
}

void TariffTable::set(int row, std::string_view mark, const Rates& rates) {
    const TariffRow& at = layoutOf(row);
    put(bytes_.data() + at.gradeAt, at.gradeWidth, at.grade);
    put(bytes_.data() + at.markAt(), at.markWidth, mark);
    std::memcpy(bytes_.data() + at.ratesAt(), &rates, sizeof rates);
}

int TariffTable::find(std::string_view wanted) const {
    for (int row = 0; row < tariffRowCount; ++row) {
        if (trim(grade(row)) == trim(wanted)) return row;
    }
    return -1;
}

std::span<const FieldInfo> tariffTableFields() {
    static const FieldTable table = makeTariffFields();
    return table.fields();
}

std::span<const FieldInfo> secretaryFields() {
    static const FieldTable table = makeSecretaryFields();
    return table.fields();
}

}  // namespace vorbano
