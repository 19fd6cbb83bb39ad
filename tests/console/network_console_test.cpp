#include <gtest/gtest.h>

#include "tests/console/console_driver.h"

namespace tallyhut {
namespace {

TEST(NetworkConsole, TheFormIsWorkedByItsNamesAndWhatIsChosenIsKnownToTheNextStart) {
    const ContestFolder folder;
    {
        ConsoleDriver program{folder.Path()};
        program.Do("menu mnuNetwork");
        EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"frmNetwork","focus":"chkContacts"})");
        EXPECT_EQ(program.Get("chkContacts"), "0");
        EXPECT_EQ(program.Get("chkRadio"), "0");
        EXPECT_EQ(program.Get("txtContacts"), R"("127.0.0.1:12060")");
        EXPECT_EQ(program.Get("lblNetwork"), R"("")");
        program.Do(R"(set txtContacts "shack")");
        program.Do("click cmdDone");
        EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"frmNetwork","focus":"txtContacts"})");
        EXPECT_EQ(program.Get("lblNetwork"), R"("shack is no address: HOST:PORT is one")");
        program.Do(R"(set txtContacts "127.0.0.1:0")");
        EXPECT_EQ(program.Get("lblNetwork"), R"("")");
        program.Do("key Tab");
        EXPECT_EQ(program.Get("lblNetwork"), R"("127.0.0.1:0 is no address: HOST:PORT is one")");
        program.Do(R"(set txtContacts "127.0.0.1:9")");
        program.Do("click chkContacts");
        program.Do("key Alt+D");
        EXPECT_EQ(program.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
        program.LogContact("88aw1xx72mdc");
        EXPECT_NE(folder.Read("Log.txt").find("W1XX"), std::string::npos);
        program.Do("quit");
    }
    ConsoleDriver again{folder.Path()};
    again.Do("menu mnuNetwork");
    EXPECT_EQ(again.Get("chkContacts"), "1");
    EXPECT_EQ(again.Get("txtContacts"), R"("127.0.0.1:9")");
    again.Do("key Esc");
    EXPECT_EQ(again.LastTurn(), R"({"ready":"idle","form":"Form1","focus":"txtNum"})");
}

}  // namespace
}  // namespace tallyhut
