#pragma once

// What every Database must do, whatever it is made of. A test folder instantiates it with its own maker:
//
//     INSTANTIATE_TEST_SUITE_P(Memory, DatabaseContract, testing::Values(DatabaseMaker{...}), makerName);

#include <gmock/gmock.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/database.h"
#include "support/results.h"

namespace vorbano::test {

/// The tables of the database that a maker must make, all of them empty.
inline std::vector<TableInfo> contractTables() {
    return {{"Voci",
             {{"Nome", ColumnType::text},
              {"Numero", ColumnType::whole},
              {"Quota", ColumnType::number},
              {"Importo", ColumnType::amount}}},
            {"Altre", {{"Nome", ColumnType::text}}}};
}

struct DatabaseMaker {
    std::string name;
    std::function<std::shared_ptr<Database>()> make;
};

inline std::string makerName(const testing::TestParamInfo<DatabaseMaker>& info) { return info.param.name; }

class DatabaseContract : public testing::TestWithParam<DatabaseMaker> {
  protected:
    std::shared_ptr<Database> database = GetParam().make();

    void appendNames(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            ASSERT_THAT(database->append("Voci", Row().setText("Nome", name)), Succeeds());
    }
    /// The field as the clerk reads it; "(nothing)" when there is none.
    std::string shown(int number, std::string_view field) {
        const auto row = database->read("Voci", number);
        if (!row) return "(no row)";
        const Value* value = row->find(field);
        return value == nullptr || std::holds_alternative<std::monostate>(*value) ? "(nothing)" : shownValue(*value);
    }
};

TEST_P(DatabaseContract, CanBeUsed) { EXPECT_THAT(database->check(), Succeeds()); }

TEST_P(DatabaseContract, BeginsWithEmptyTables) {
    EXPECT_THAT(database->count("Voci"), Gives(0));
    EXPECT_THAT(database->count("Altre"), Gives(0));
    EXPECT_THAT(database->read("Voci", 1), Fails(Failure::notFound));
}

TEST_P(DatabaseContract, KeepsEveryKindOfValue) {
    Row row;
    row.setText("Nome", "D'Angelo \"Niccolò\"").setWhole("Numero", -7).set("Quota", Value(0.5));
    row.set("Importo", Value(Amount{1700550}));
    ASSERT_THAT(database->append("Voci", row), Succeeds());
    const auto read = database->read("Voci", 1);
    ASSERT_THAT(read, Succeeds());
    EXPECT_EQ(*read->find("Nome"), Value(std::string("D'Angelo \"Niccolò\"")));
    EXPECT_EQ(*read->find("Numero"), Value(std::int64_t{-7}));
    EXPECT_EQ(*read->find("Quota"), Value(0.5));
    EXPECT_EQ(*read->find("Importo"), Value(Amount{1700550}));
}

TEST_P(DatabaseContract, AnAmountIsKeptToTheLastOfItsUnits) {
    ASSERT_THAT(database->append("Voci", Row().set("Importo", Value(Amount{922337203685477}))), Succeeds());
    EXPECT_EQ(*database->read("Voci", 1)->find("Importo"), Value(Amount{922337203685477}));
}

TEST_P(DatabaseContract, FieldsThatWereNotSetStayEmpty) {
    ASSERT_THAT(database->append("Voci", Row().setWhole("Numero", 3)), Succeeds());
    EXPECT_EQ(shown(1, "Nome"), "(nothing)");
    EXPECT_EQ(shown(1, "Importo"), "(nothing)");
    EXPECT_EQ(shown(1, "Numero"), "3");
}

TEST_P(DatabaseContract, NamesAreComparedWithoutRegardToCase) {
    ASSERT_THAT(database->append("VOCI", Row().setText("nome", "Rossi")), Succeeds());
    EXPECT_THAT(database->count("voci"), Gives(1));
    EXPECT_EQ(shown(1, "NOME"), "Rossi");
}

TEST_P(DatabaseContract, RowsAreReadInTheOrderOfAppending) {
    appendNames({"Bianchi", "Rossi", "Amati"});
    EXPECT_THAT(database->count("Voci"), Gives(3));
    EXPECT_EQ(shown(1, "Nome"), "Bianchi");
    EXPECT_EQ(shown(3, "Nome"), "Amati");
    EXPECT_EQ(shown(0, "Nome"), "(no row)");
    EXPECT_EQ(shown(4, "Nome"), "(no row)");
}

TEST_P(DatabaseContract, SeekingBeginsAtTheTextOrAtTheFirstOneBehindIt) {
    appendNames({"Rossi", "Bianchi", "Amati", "Rossini"});
    const auto names = [&](std::string_view text, int rows) {
        std::vector<std::string> found;
        const auto sought = database->seek("Voci", "Nome", text, rows);
        if (!sought) return std::vector<std::string>{"(failure)"};
        for (const Row& row : *sought) found.push_back(shownValue(*row.find("Nome")));
        return found;
    };
    EXPECT_THAT(names("Bianchi", 2), ::testing::ElementsAre("Bianchi", "Rossi"));
    EXPECT_THAT(names("C", 9), ::testing::ElementsAre("Rossi", "Rossini"));
    EXPECT_THAT(names("", 1), ::testing::ElementsAre("Amati"));
    EXPECT_THAT(names("Rossinib", 9), ::testing::IsEmpty());
    EXPECT_THAT(names("A", 0), ::testing::IsEmpty());
}

TEST_P(DatabaseContract, SeekingGivesEqualTextsInTheOrderOfAppending) {
    for (int number = 1; number <= 3; ++number) {
        ASSERT_THAT(database->append("Voci", Row().setText("Nome", "Rossi").setWhole("Numero", number)), Succeeds());
    }
    const auto sought = database->seek("VOCI", "nome", "Rossi", 3);
    ASSERT_THAT(sought, Succeeds());
    ASSERT_EQ(sought->size(), 3U);
    EXPECT_EQ(shownValue(*sought->front().find("Numero")), "1");
    EXPECT_EQ(shownValue(*sought->back().find("Numero")), "3");
}

TEST_P(DatabaseContract, SeekingInATableOrFieldThatIsNotThereIsNotFound) {
    EXPECT_THAT(database->seek("Manca", "Nome", "x", 1), Fails(Failure::notFound));
    EXPECT_THAT(database->seek("Voci", "Manca", "x", 1), Fails(Failure::notFound));
}

TEST_P(DatabaseContract, TablesAreApart) {
    appendNames({"Bianchi"});
    EXPECT_THAT(database->count("Altre"), Gives(0));
}

TEST_P(DatabaseContract, RowsAreRemovedFromTheFirstOne) {
    appendNames({"Bianchi", "Rossi", "Amati"});
    ASSERT_THAT(database->removeFirst("Voci", 2), Succeeds());
    EXPECT_THAT(database->count("Voci"), Gives(1));
    EXPECT_EQ(shown(1, "Nome"), "Amati");
    appendNames({"Verdi"});
    EXPECT_EQ(shown(2, "Nome"), "Verdi");
}

TEST_P(DatabaseContract, RemovingStopsAtTheEndOfTheTable) {
    appendNames({"Bianchi", "Rossi"});
    ASSERT_THAT(database->removeFirst("Voci", 5), Succeeds());
    EXPECT_THAT(database->count("Voci"), Gives(0));
    EXPECT_THAT(database->removeFirst("Voci", 1), Succeeds());
}

TEST_P(DatabaseContract, RemovingNoRowsRemovesNone) {
    appendNames({"Bianchi"});
    ASSERT_THAT(database->removeFirst("Voci", 0), Succeeds());
    EXPECT_THAT(database->count("Voci"), Gives(1));
}

TEST_P(DatabaseContract, RemoveAllEmptiesOneTable) {
    appendNames({"Bianchi", "Rossi"});
    ASSERT_THAT(database->append("Altre", Row().setText("Nome", "Verdi")), Succeeds());
    ASSERT_THAT(database->removeAll("Voci"), Succeeds());
    EXPECT_THAT(database->count("Voci"), Gives(0));
    EXPECT_THAT(database->count("Altre"), Gives(1));
}

TEST_P(DatabaseContract, ATableThatIsNotThereIsNotFound) {
    EXPECT_THAT(database->count("Manca"), Fails(Failure::notFound));
    EXPECT_THAT(database->append("Manca", Row().setText("Nome", "x")), Fails(Failure::notFound));
    EXPECT_THAT(database->read("Manca", 1), Fails(Failure::notFound));
    EXPECT_THAT(database->removeFirst("Manca", 1), Fails(Failure::notFound));
    EXPECT_THAT(database->removeAll("Manca"), Fails(Failure::notFound));
}

TEST_P(DatabaseContract, AFieldThatIsNotThereIsNotFoundAndNothingIsAppended) {
    EXPECT_THAT(database->append("Voci", Row().setText("Nome", "Rossi").setWhole("Manca", 1)),
                Fails(Failure::notFound));
    EXPECT_THAT(database->count("Voci"), Gives(0));
}

TEST_P(DatabaseContract, ANameOrValueIsNeverTakenForACommand) {
    EXPECT_THAT(database->append("Voci; DROP TABLE Altre", Row()), Fails(Failure::notFound));
    EXPECT_THAT(database->append("Voci", Row().setText("Nome) VALUES (1); --", "x")), Fails(Failure::notFound));
    appendNames({"'); DROP TABLE Altre; --"});
    EXPECT_EQ(shown(1, "Nome"), "'); DROP TABLE Altre; --");
    EXPECT_THAT(database->count("Altre"), Gives(0));
}

TEST_P(DatabaseContract, ANumberInItalianFormGoesIntoAColumnOfNumbers) {
    Row row;
    row.setText("Numero", "12").setText("Quota", "0,5").setText("Importo", "1.234,50");
    ASSERT_THAT(database->append("Voci", row), Succeeds());
    EXPECT_EQ(shown(1, "Numero"), "12");
    EXPECT_EQ(shown(1, "Quota"), "0,50");
    EXPECT_EQ(*database->read("Voci", 1)->find("Importo"), Value(Amount{12345000}));
}

TEST_P(DatabaseContract, ATextThatIsNoNumberIsRefusedByAColumnOfNumbers) {
    EXPECT_THAT(database->append("Voci", Row().setText("Importo", "dieci")), Fails(Failure::refused));
    EXPECT_THAT(database->count("Voci"), Gives(0));
}

TEST_P(DatabaseContract, ManyRowsGoInAtOnce) {
    ASSERT_THAT(database->begin(), Succeeds());
    for (int number = 1; number <= 1000; ++number) {
        ASSERT_THAT(database->append("Voci", Row().setWhole("Numero", number)), Succeeds());
    }
    EXPECT_THAT(database->count("Voci"), Gives(1000));
    ASSERT_THAT(database->commit(), Succeeds());
    EXPECT_THAT(database->count("Voci"), Gives(1000));
    EXPECT_EQ(shown(1000, "Numero"), "1000");
}

}  // namespace vorbano::test
