#include "document/EditTracker.h"

#include <gtest/gtest.h>

#include "document/UndoStack.h"

namespace tw::test {
namespace {

struct Case {
    const char* from = nullptr;
    const char* to = nullptr;
    TextSpan span = {};
};

TEST(ChangedSpan, IsWhatTheNewTextHasReplaced) {
    const Case cases[] = {
        {"", "", {0, 0, 0}},          {"abc", "abc", {3, 0, 0}},        {"", "abc", {0, 0, 3}},
        {"abc", "", {0, 3, 0}},       {"abc", "abXc", {2, 0, 1}},       {"abXc", "abc", {2, 1, 0}},
        {"abc", "aXYc", {1, 1, 2}},   {"aa", "aaa", {2, 0, 1}},         {"aaa", "aa", {2, 1, 0}},
        {"abcabc", "abc", {3, 3, 0}}, {"a\r\nb", "a\r\nXb", {3, 0, 1}},
    };
    for (const Case& c : cases) {
        const TextSpan span = ChangedSpan(c.from, c.to);
        EXPECT_EQ(span.start, c.span.start) << c.from << " to " << c.to;
        EXPECT_EQ(span.oldLength, c.span.oldLength) << c.from << " to " << c.to;
        EXPECT_EQ(span.newLength, c.span.newLength) << c.from << " to " << c.to;
    }
}

// The first two texts differ only in their last byte, the next two only in their first.
TEST(ChangedSpan, NeverCutsACharacter) {
    const Case cases[] = {
        {"ä", "ö", {0, 1, 1}},    {"aä", "aö", {1, 1, 1}},   {"é", "©", {0, 1, 1}},
        {"éb", "©b", {0, 1, 1}},  {"麦芽", "麦", {1, 1, 0}}, {"麦", "麦芽", {1, 0, 1}},
        {"äöü", "äü", {1, 1, 0}}, {"ä", "a", {0, 1, 1}},     {"🍺", "🍻", {0, 1, 1}},
    };
    for (const Case& c : cases) {
        const TextSpan span = ChangedSpan(c.from, c.to);
        EXPECT_EQ(span.start, c.span.start) << c.from << " to " << c.to;
        EXPECT_EQ(span.oldLength, c.span.oldLength) << c.from << " to " << c.to;
        EXPECT_EQ(span.newLength, c.span.newLength) << c.from << " to " << c.to;
    }
}

TEST(ChangeTypeName, IsTheWordOfTheMenu) {
    const char* const names[] = {"Typing",
                                 "Selection",
                                 "Cut",
                                 "Delete",
                                 "Paste",
                                 "Abort",
                                 "Insert Row",
                                 "Delete Row",
                                 "Calculation",
                                 "Sort",
                                 "Resize Recipe",
                                 "Adjust Strength",
                                 "Adjust Bitterness",
                                 "Adjust Carbonation"};
    for (int type = 0; type < 14; ++type)
        EXPECT_EQ(ChangeTypeName(static_cast<ChangeType>(type)), names[type]);
    EXPECT_EQ(ChangeTypeName(static_cast<ChangeType>(14)), "");
    EXPECT_EQ(ChangeTypeName(static_cast<ChangeType>(-1)), "");
}

TEST(EditValue, AnOrderThatMovesNothingIsNoChange) {
    const auto same = [](std::vector<int> before, std::vector<int> after) {
        return EditValue::OfOrder(std::move(before)).SameAs(EditValue::OfOrder(std::move(after)));
    };
    EXPECT_TRUE(same({0, 1, 2}, {0, 1, 2}));
    EXPECT_TRUE(same({0}, {0}));
    EXPECT_FALSE(same({1, 0, 2}, {1, 0, 2}));
}

TEST(EditValue, ValuesOfOtherKindsDiffer) {
    const EditValue nothing, text = EditValue::OfText(""), number = EditValue::OfNumber(0),
                             boolean = EditValue::OfBoolean(false);
    EXPECT_TRUE(nothing.SameAs(EditValue()));
    EXPECT_FALSE(nothing.SameAs(text));
    EXPECT_FALSE(text.SameAs(number));
    EXPECT_FALSE(number.SameAs(boolean));
    const EditValue own = EditValue::OfTextAndNumber("8 lb", CellValue::Of(9));
    EXPECT_EQ(own.AsText(), "8 lb");
    EXPECT_FALSE(own.SameAs(EditValue::OfText("8 lb")));
    EXPECT_TRUE(own.SameAs(EditValue::OfTextAndNumber("8 lb", CellValue::Of(9))));
    EXPECT_FALSE(own.SameAs(EditValue::OfTextAndNumber("8 lb", CellValue::Of(8))));
}

TEST(EditValue, KeepsEveryByteOfAText) {
    const std::string text = std::string("a\0b", 3) + std::string(100000, 'x');
    EXPECT_EQ(EditValue::OfText(text).AsText(), text);
}

TEST(EditTracker, ItsControlHasItsIndexBehindTheName) {
    const std::string name = "optMethod";
    EditTracker edit;
    EXPECT_EQ(edit.GetControlID(), "");
    edit.SetControlID(name, -1);
    EXPECT_EQ(edit.GetControlID(), "optMethod");
    edit.SetControlID(name, 2);
    EXPECT_EQ(edit.GetControlID(), "optMethod(2)");
}

TEST(EditTracker, ALongChainGoesWithoutTrouble) {
    EditTracker head;
    EditTracker* tail = &head;
    for (int i = 0; i < 1000000; ++i) tail = tail->AddNext(EditTracker());
    head.Cleanup();
    EXPECT_EQ(head.GetNext(), nullptr);
}

TEST(UndoStack, WhatCanBeRedoneIsTakenOutAndPutBack) {
    UndoStack stack;
    for (const ChangeType type : {ChangeType::Cut, ChangeType::Paste, ChangeType::Sort}) {
        EditTracker edit;
        edit.SetChangeType(type);
        stack.AddToStack(std::move(edit));
    }
    stack.StepBack();
    stack.StepBack();
    std::vector<EditTracker> redo = stack.TakeRedo();
    EXPECT_EQ(stack.StackTop(), 1U);
    EXPECT_FALSE(stack.CanRedo());
    stack.PutBackRedo(std::move(redo));
    EXPECT_EQ(stack.UndoType(), "Cut");
    EXPECT_EQ(stack.RedoType(), "Paste");
    stack.StepForward();
    stack.StepForward();
    EXPECT_EQ(stack.UndoType(), "Sort");
    EXPECT_FALSE(stack.CanRedo());
}

}  // namespace
}  // namespace tw::test
