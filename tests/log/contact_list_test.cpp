#include "log/contact_list.h"

#include "tests/log/program_fixture.h"

namespace tallyhut {
namespace {

struct ContactListTest : ProgramFixture {
    std::string RecOf(std::size_t row) { return Main().ListView1.Cell(row, 0); }
    void ClickColumn(int column) {
        TheDesk().PostAction([this, column] { Main().ListView1.ColumnClick(column); });
        TheDesk().RunPending();
    }
};

TEST_F(ContactListTest, HasTheToldColumns) {
    Start();
    const std::vector<ListColumn> told{{"Rec#", 520}, {"Ns", 520},  {"Nr", 520},   {"P", 340},    {"Call", 920},
                                       {"Ck", 420},   {"Sec", 620}, {"Date", 720}, {"Time", 720}, {"Bnd", 520}};
    EXPECT_EQ(Main().ListView1.State().columns, told);
    EXPECT_EQ(Main().lblRecentContacts.Caption(), "Recent Contacts");
}

TEST_F(ContactListTest, ListsTheLast20WithTheNewestOnTop) {
    struct Case {
        int contacts;
        std::size_t rows;
        const char* top;
        const char* bottom;
    };
    for (const auto& [contacts, rows, top, bottom] :
         {Case{1, 1, "1", "1"}, Case{19, 19, "19", "1"}, Case{20, 20, "20", "1"}, Case{21, 20, "21", "2"},
          Case{500, 20, "500", "481"}}) {
        StartWith(ManyContacts(contacts));
        ASSERT_EQ(Main().ListView1.RowCount(), rows) << contacts;
        EXPECT_EQ(RecOf(0), top) << contacts;
        EXPECT_EQ(RecOf(rows - 1), bottom) << contacts;
        program.reset();
    }
}

TEST_F(ContactListTest, The21stContactDropsTheOldest) {
    StartWith(ManyContacts(20));
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(Main().ListView1.RowCount(), 20U);
    EXPECT_EQ(Row(0), "21|21|88|A|K1AB|72|CT|11/07|21:04|40");
    EXPECT_EQ(RecOf(19), "2");
}

TEST_F(ContactListTest, ListsAllWhenAsked) {
    StartWith(ManyContacts(500));
    EXPECT_EQ(program->list.gListAll, 0);
    program->list.gListAll = 1;
    program->list.ListContacts();
    ASSERT_EQ(Main().ListView1.RowCount(), 500U);
    EXPECT_EQ(RecOf(0), "500");
    EXPECT_EQ(RecOf(499), "1");
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(Main().ListView1.RowCount(), 501U);
}

TEST_F(ContactListTest, RowShowsTheFieldsAndNotTheFrequency) {
    StartWith({Contact{.Ns = "9",
                       .Nr = "1234",
                       .P = "Q",
                       .Call = "VE3AB/W4",
                       .Ck = "07",
                       .Sec = "ONE",
                       .Date = "2026/11/08",
                       .Time = "02:59:58",
                       .Bnd = "160",
                       .Frq = "1.815"}});
    EXPECT_EQ(Row(0), "1|9|1234|Q|VE3AB/W4|07|ONE|11/08|2:59|160");
}

TEST_F(ContactListTest, TextsThatAreNoDateOrTimeAreShownAsTheyAre) {
    Contact contact = Worked("W1XX");
    contact.Date = "11-7";
    contact.Time = "2104";
    Contact empty = Worked("W2XX");
    empty.Date = "";
    empty.Time = "";
    StartWith({contact, empty});
    EXPECT_EQ(Row(1), "1|137|88|A|W1XX|72|MDC|11/07|2104|40");
    EXPECT_EQ(Row(0), "2|137|88|A|W2XX|72|MDC|||40");
}

TEST_F(ContactListTest, ColumnHeadingSortsOnceAsText) {
    StartWith(ManyContacts(12));
    ClickColumn(2);
    std::vector<std::string> serials;
    for (std::size_t row = 0; row < 12; ++row) {
        serials.push_back(Main().ListView1.Cell(row, 1));
    }
    EXPECT_EQ(serials, (std::vector<std::string>{"1", "10", "11", "12", "2", "3", "4", "5", "6", "7", "8", "9"}));
    EXPECT_EQ(program->list.LogRowAt(1), 10);
    Type("88aK1AB72ct");
    Press("Enter");
    EXPECT_EQ(RecOf(0), "13");
    EXPECT_EQ(RecOf(12), "1");
}

TEST_F(ContactListTest, RowOfTheListTellsItsRowInTheLog) {
    StartWith(ManyContacts(25));
    EXPECT_EQ(program->list.LogRowAt(0), 25);
    EXPECT_EQ(program->list.LogRowAt(19), 6);
    for (const int none : {-1, 20, 1'000}) {
        EXPECT_EQ(program->list.LogRowAt(none), 0) << none;
    }
}

TEST_F(ContactListTest, NextRunListsTheLast20Again) {
    StartWith(ManyContacts(30));
    program->list.gListAll = 1;
    program.reset();
    StartWith(ManyContacts(30));
    EXPECT_EQ(Main().ListView1.RowCount(), 20U);
}

}  // namespace
}  // namespace tallyhut
