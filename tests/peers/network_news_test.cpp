// The whole process, with a program at the other end that hears what it tells of contacts and of the radio.

#include <gtest/gtest.h>

#include <filesystem>
#include <pugixml.hpp>

#include "tests/console/console_driver.h"
#include "tests/platform/datagram_listener.h"

namespace tallyhut {
namespace {

/// What a contest tool keeps of the contacts that it hears of, by their ID, as such tools do.
struct Reader {
    DatagramListener listener;
    std::map<std::string, std::string> contacts;  ///< call by ID
    std::string roots;                            ///< of what was heard since the last look
    pugi::xml_document heard;                     ///< the newest

    /// False where nothing came.
    bool Hear(int patience = 10'000) {
        const std::string datagram = listener.Next(patience);
        if (datagram.empty()) {
            return false;
        }
        EXPECT_TRUE(heard.load_buffer(datagram.data(), datagram.size(), pugi::parse_default, pugi::encoding_utf8));
        const pugi::xml_node root = heard.document_element();
        roots += (roots.empty() ? "" : " ") + std::string{root.name()};
        const std::string id = root.child_value("ID");
        if (std::string{root.name()} == "contactdelete") {
            contacts.erase(id);
        } else if (!id.empty()) {
            contacts[id] = root.child_value("call");
        }
        return true;
    }
    std::string Value(const char* element) const { return heard.document_element().child_value(element); }
    std::string TakeRoots() { return std::exchange(roots, {}); }
    std::string Address() const { return "127.0.0.1:" + std::to_string(listener.Port()); }
};

struct NetworkNewsTest : testing::Test {
    ContestFolder folder;
    Reader reader;

    static void SendContactsTo(ConsoleDriver& program, const std::string& addresses) {
        program.Do("menu mnuNetwork");
        program.Do("set txtContacts \"" + addresses + '"');
        program.Do("focus txtApp");
        if (program.Get("chkContacts") == "0") {
            program.Do("click chkContacts");
        }
        program.Do("click cmdDone");
    }
};

TEST_F(NetworkNewsTest, AReaderFollowsTheLogThroughEditsADeletionAndARestart) {
    std::string idOfTheFirst;
    {
        ConsoleDriver program{folder.Path()};
        program.LogContact("87aw1aw72ct");
        SendContactsTo(program, reader.Address());
        EXPECT_FALSE(reader.Hear(100)) << "what was logged before is no news";
        program.LogContact("88ak9zo69il");
        ASSERT_TRUE(reader.Hear());
        EXPECT_EQ(reader.TakeRoots(), "contactinfo");
        EXPECT_EQ(reader.Value("call") + ' ' + reader.Value("sntnr") + ' ' + reader.Value("section"), "K9ZO 2 IL");
        EXPECT_EQ(reader.Value("timestamp"), "2026-11-07 21:04:33");
        idOfTheFirst = reader.Value("ID");
        program.Do("quit");
    }
    ConsoleDriver program{folder.Path(), {"--clock", "2026-11-07T22:00:00"}};
    program.LogContact("89ak2yy55nli");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.contacts.size(), 2U);
    program.Do("pick ListView1 1");
    program.Do("click cmdEdit");
    program.Do(R"(set txtEditCall "K9ZOO")");
    program.Do(R"(set txtEditTime "21:05:00")");
    program.Do("click cmdDone");
    ASSERT_TRUE(reader.Hear());
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.TakeRoots(), "contactinfo contactdelete contactreplace");
    EXPECT_EQ(reader.contacts.at(idOfTheFirst), "K9ZOO");
    EXPECT_EQ(reader.contacts.size(), 2U);
    program.Do("pick ListView1 1");
    program.Do("click cmdEdit");
    program.Do("close");
    program.Do("menu mnuOpen");
    EXPECT_FALSE(reader.Hear(100)) << "an edit given up and a reload are no news";
    program.Do("pick ListView1 1");
    program.Do("click cmdDelete");
    program.Do("answer Yes");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.TakeRoots(), "contactdelete");
    EXPECT_FALSE(reader.contacts.contains(idOfTheFirst));
    EXPECT_EQ(reader.contacts.size(), 1U);
}

TEST_F(NetworkNewsTest, AReaderThatIsAwayIsNamedAndCostsTheOthersNothing) {
    Reader other;
    const int port = reader.listener.Port();
    reader.listener.StopListening();
    ConsoleDriver program{folder.Path()};
    SendContactsTo(program, reader.Address() + "," + other.Address());
    program.LogContact("88ak9zo69il");
    ASSERT_TRUE(other.Hear());
    program.Do("settle 50");
    EXPECT_EQ(program.Get("frmNetwork.lblNetwork"), '"' + reader.Address() + ": nobody listens there\"");
    program.LogContact("89ak2yy55nli");
    ASSERT_TRUE(other.Hear());
    reader.listener.ListenOn(port);
    program.LogContact("90ak3zz55mdc");
    ASSERT_TRUE(reader.Hear()) << "the refusal of the one before keeps nothing back";
    EXPECT_EQ(reader.Value("call"), "K3ZZ");
    ASSERT_TRUE(other.Hear());
    program.Do("settle 50");
    program.Do("advance 6000");
    EXPECT_EQ(program.Get("frmNetwork.lblNetwork"), R"("")");
}

TEST_F(NetworkNewsTest, AHostIsFoundByItsName) {
    ConsoleDriver program{folder.Path()};
    SendContactsTo(program, "localhost:" + std::to_string(reader.listener.Port()));
    program.LogContact("88ak9zo69il");
    program.Do("settle 200");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.Value("call"), "K9ZO");
}

TEST_F(NetworkNewsTest, TheRadioIsToldWhenItIsTunedAndEveryTenSeconds) {
    ConsoleDriver program{folder.Path(), {"--clock", ConsoleDriver::kStart, "--port", "1=sim"}};
    program.Do("menu mnuNetwork");
    program.Do("set txtRadio \"" + reader.Address() + '"');
    program.Do("focus txtApp");
    program.Do("click chkRadio");
    program.Do("click cmdDone");
    program.Do("advance 30000");
    EXPECT_FALSE(reader.Hear(50)) << "no radio is polled";
    program.Do("reply 1 46413B 464130303031343230303030303B 30");
    program.Do("menu mnuRig");
    program.Do("pick List1 4");
    program.Do("click cmdDone");
    program.Do("advance 1000");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.Value("Freq") + ' ' + reader.Value("Mode") + ' ' + reader.Value("RadioName"),
              "1420000 CW Kenwood");
    program.Do("reply 1 46413B 464130303032313330303531303B 30");
    program.Do("advance 1000");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(reader.Value("Freq"), "2130051");
    program.Do("advance 30000");
    int repeats = 0;
    while (reader.Hear(50)) {
        EXPECT_EQ(reader.Value("Freq"), "2130051");
        ++repeats;
    }
    EXPECT_EQ(repeats, 3);
}

/// The process has no port that anybody could send to, but those that it sends from.
TEST_F(NetworkNewsTest, NothingListens) {
    ConsoleDriver program{folder.Path()};
    const auto sockets = [&program] {
        int count = 0;
        for (const auto& entry :
             std::filesystem::directory_iterator("/proc/" + std::to_string(program.Process()) + "/fd")) {
            std::error_code unreadable;
            count += std::filesystem::read_symlink(entry, unreadable).string().starts_with("socket:") ? 1 : 0;
        }
        return count;
    };
    const int before = sockets();
    SendContactsTo(program, reader.Address());
    program.LogContact("88ak9zo69il");
    ASSERT_TRUE(reader.Hear());
    EXPECT_EQ(sockets(), before + 1);
    reader.listener.Answer("<contactdelete><ID>1</ID></contactdelete>");
    program.Do("settle 50");
    EXPECT_EQ(reader.listener.WaitingAtTheSender(), 0);
    EXPECT_EQ(program.Get("$gContactCount"), "1");
    SendContactsTo(program, "");
    program.Do("menu mnuNetwork");
    program.Do("click chkContacts");
    program.Do("click cmdDone");
    EXPECT_EQ(sockets(), before);
}

}  // namespace
}  // namespace tallyhut
