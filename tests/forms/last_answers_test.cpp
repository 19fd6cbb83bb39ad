#include "forms/qt/last_answers.h"

#include <gtest/gtest.h>

#include <string>

namespace tallyhut {
namespace {

TEST(LastAnswersTest, WhatIsAskedAgainIsNotWorkedOutAgain) {
    LastAnswers<int, std::string, 2> answers;
    int worked = 0;
    const auto ask = [&](int question) {
        return answers.Of(question, [&] {
            ++worked;
            return std::to_string(question);
        });
    };
    EXPECT_EQ(ask(1), "1");
    EXPECT_EQ(ask(2), "2");
    EXPECT_EQ(ask(1), "1");
    EXPECT_EQ(worked, 2);
}

TEST(LastAnswersTest, OldestIsForgotten) {
    LastAnswers<int, int, 2> answers;
    int worked = 0;
    const auto ask = [&](int question) {
        return answers.Of(question, [&] {
            ++worked;
            return -question;
        });
    };
    for (const int question : {1, 2, 3}) {
        EXPECT_EQ(ask(question), -question);
    }
    EXPECT_EQ(ask(2), -2);
    EXPECT_EQ(worked, 3);
    EXPECT_EQ(ask(1), -1);
    EXPECT_EQ(worked, 4);
}

}  // namespace
}  // namespace tallyhut
