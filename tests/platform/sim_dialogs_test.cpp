#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/sim/dialogs.h"

namespace tallyhut {
namespace {

using Lines = std::vector<std::string>;

struct SimDialogs : testing::Test {
    sim::Dialogs dialogs;

    // As the program sees them.
    tallyhut::Dialogs& asked = dialogs;
};

TEST_F(SimDialogs, EachKindTakesItsOwnAnswersInOrder) {
    dialogs.answers = {Answer::Yes, Answer::No};
    dialogs.inputs = {"W1XX"};
    dialogs.files = {"/contest/a.log", std::nullopt, "/contest"};
    dialogs.colours = {255};
    const MessageBox question{"Log", "Sure?", Buttons::YesNo, Icon::Question};
    EXPECT_EQ(asked.Show(question), Answer::Yes);
    EXPECT_EQ(asked.Show(InputBox{"Call", "", ""}), "W1XX");
    EXPECT_EQ(asked.SaveFile({}), "/contest/a.log");
    EXPECT_EQ(asked.OpenFile({}), std::nullopt);
    EXPECT_EQ(asked.ChooseFolder({}), "/contest");
    EXPECT_EQ(asked.ChooseColour(128), 255);
    EXPECT_EQ(asked.Show(question), Answer::No);
    EXPECT_EQ(asked.Shown(), 7);
}

TEST_F(SimDialogs, DialogWithoutAnAnswerIsClosed) {
    EXPECT_EQ(asked.Show(MessageBox{"", "", Buttons::OK, Icon::None}), Answer::OK);
    EXPECT_EQ(asked.Show(MessageBox{"", "", Buttons::OKCancel, Icon::None}), Answer::Cancel);
    EXPECT_EQ(asked.Show(MessageBox{"", "", Buttons::YesNo, Icon::None}), Answer::No);
    EXPECT_EQ(asked.Show(InputBox{"", "", "W1XX"}), "");
    EXPECT_EQ(asked.SaveFile({}), std::nullopt);
    EXPECT_EQ(asked.OpenFile({}), std::nullopt);
    EXPECT_EQ(asked.ChooseFolder({}), std::nullopt);
    EXPECT_EQ(asked.ChooseColour(128), std::nullopt);
}

TEST_F(SimDialogs, WhatWasShownIsKeptALineEach) {
    const FileRequest request{"Save", "*.log", "/contest", "/contest/a.log", true};
    asked.Show(MessageBox{"Log", "Sure?", Buttons::YesNo, Icon::Question});
    asked.Show(MessageBox{"", "Done", Buttons::OK, Icon::None});
    asked.Show(InputBox{"Call", "Your call", "W1XX"});
    asked.SaveFile(request);
    asked.OpenFile({"Open", "", "", "", false});
    asked.ChooseFolder({"Folder", "", "", "", false});
    asked.ChooseColour(128);
    EXPECT_EQ(dialogs.boxes, (Lines{
                                 R"(message "Log" "Sure?" YesNo Question)",
                                 R"(message "" "Done" OK None)",
                                 R"(input "Call" "Your call" "W1XX")",
                                 R"(save "Save" "*.log" "/contest" "/contest/a.log" prompt)",
                                 R"(open "Open" "" "" "")",
                                 R"(folder "Folder" "" "" "")",
                                 "colour 128",
                             }));
}

TEST_F(SimDialogs, AnswerWithoutAButtonFailsTheTest) {
    dialogs.answers = {Answer::Yes, Answer::Cancel};
    EXPECT_THROW(asked.Show(MessageBox{"", "", Buttons::OK, Icon::None}), sim::AnswerWithoutButton);
    EXPECT_THROW(asked.Show(MessageBox{"", "", Buttons::YesNo, Icon::None}), sim::AnswerWithoutButton);
}

TEST_F(SimDialogs, DialogThatComesUpDuringAnotherTakesTheNextAnswer) {
    dialogs.answers = {Answer::Yes, Answer::OK};
    dialogs.onShow = [&] {
        dialogs.onShow = nullptr;
        EXPECT_EQ(asked.Show(MessageBox{"", "inner", Buttons::OKCancel, Icon::None}), Answer::OK);
    };
    EXPECT_EQ(asked.Show(MessageBox{"", "outer", Buttons::YesNo, Icon::None}), Answer::Yes);
    EXPECT_EQ(dialogs.boxes, (Lines{R"(message "" "outer" YesNo None)", R"(message "" "inner" OKCancel None)"}));
}

TEST_F(SimDialogs, BeepsAreCounted) {
    asked.Beep();
    asked.Beep();
    EXPECT_EQ(dialogs.beeps, 2);
    EXPECT_EQ(asked.Shown(), 0);
}

}  // namespace
}  // namespace tallyhut
