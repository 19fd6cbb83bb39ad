// The rows of a list are drawn by the program's own hand where that is quicker: to the pixels that the style draws.

#include <gtest/gtest.h>

#include <QImage>
#include <QStyledItemDelegate>
#include <QTreeView>

#include "tests/forms/shown_program.h"

namespace tallyhut {
namespace {

/// The style's own drawing, in rows as high.
class ByTheStyle : public QStyledItemDelegate {
public:
    explicit ByTheStyle(int height) : height_{height} {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width(), height_};
    }

private:
    int height_;
};

struct RowsPictureWalkTest : testing::Test {
    QTreeView& Rows() { return *shown.WindowOf(shown.program.form1).findChild<QTreeView*>("ListView1"); }
    void List(const std::vector<Contact>& contacts) {
        for (const Contact& contact : contacts) {
            shown.program.log.Add(contact);
        }
        shown.program.list.ListContacts();
        shown.Settle();
    }
    QImage ByUs() { return Rows().grab().toImage(); }
    QImage ByStyle() {
        ByTheStyle style{Rows().visualRect(Rows().model()->index(0, 0)).height()};
        QAbstractItemDelegate* const ours = Rows().itemDelegate();
        Rows().setItemDelegate(&style);
        QImage image = Rows().grab().toImage();
        Rows().setItemDelegate(ours);
        return image;
    }

    ShownProgram shown;
};

TEST_F(RowsPictureWalkTest, PlainTextLooksAsTheStyleDrawsIt) {
    List(LivelyContest(30, shown.clock.Now()));
    EXPECT_EQ(ByUs(), ByStyle());
}

TEST_F(RowsPictureWalkTest, ChosenRowLooksAsTheStyleDrawsIt) {
    List(LivelyContest(30, shown.clock.Now()));
    shown.program.form1.ListView1.SelectRow(2);
    shown.Settle();
    EXPECT_EQ(ByUs(), ByStyle());
}

TEST_F(RowsPictureWalkTest, TextThatIsTooLongOrNotPlainLooksAsTheStyleDrawsIt) {
    std::vector<Contact> contacts = LivelyContest(4, shown.clock.Now());
    contacts[0].Call = "W1AW/THE-LONGEST-CALL-THAT-EVER-WAS-LOGGED";
    contacts[1].Call = "W1A\xC5";
    contacts[2].Call = "W1A\tW";
    contacts[3].Call = "";
    List(contacts);
    EXPECT_EQ(ByUs(), ByStyle());
}

TEST_F(RowsPictureWalkTest, TextThatAlmostFillsItsCellLooksAsTheStyleDrawsIt) {
    std::vector<Contact> contacts = LivelyContest(20, shown.clock.Now());
    for (std::size_t n = 0; n < contacts.size(); ++n) {
        contacts[n].Call = std::string(n + 1, 'W');
    }
    List(contacts);
    const int usual = Rows().columnWidth(4);
    for (int narrower = 0; narrower < 10; ++narrower) {
        Rows().setColumnWidth(4, usual - narrower);
        EXPECT_EQ(ByUs(), ByStyle()) << narrower;
    }
}

TEST_F(RowsPictureWalkTest, RowsOfAListThatIsDisabledLookAsTheStyleDrawsThem) {
    List(LivelyContest(30, shown.clock.Now()));
    shown.program.form1.ListView1.SetEnabled(false);
    shown.Settle();
    EXPECT_EQ(ByUs(), ByStyle());
}

TEST_F(RowsPictureWalkTest, PictureIsNotEmpty) {
    const QImage full = ByUs();
    shown.program.log.Clear();
    List({});
    EXPECT_NE(ByUs(), full);
}

}  // namespace
}  // namespace tallyhut
