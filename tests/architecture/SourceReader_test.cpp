#include "architecture/SourceReader.h"

#include <gtest/gtest.h>

namespace tw::test {
namespace {

// "Name: count" of every class, in the order of the text.
std::string Counted(std::string_view source) {
    std::string text;
    for (const DeclaredClass& found : ClassesOf(source))
        text += found.name + ": " + std::to_string(found.functions) + "\n";
    return text;
}

TEST(SourceReader, LeavesOutCommentsAndWhatStandsBetweenQuotes) {
    EXPECT_EQ(CodeOf("int a; // b\nint c; /* d\ne */ f(\"g\\\"h\", 'i');"),
              "int a;     \nint c;     \n     f(\"    \", ' ');");
    EXPECT_EQ(CodeOf("#define A \\\n  b\nint c = 1'000;"), "           \n   \nint c = 1'000;");
    EXPECT_EQ(CodeOf("f(R\"x(a)\" // b)x\");"), "f(R             \");");
    EXPECT_EQ(WithoutComments("a(\"// b\"); // c"), "a(\"// b\");     ");
}

TEST(SourceReader, CountsLinesFromOne) {
    EXPECT_EQ(LineAt("a\nb\nc", 0), 1);
    EXPECT_EQ(LineAt("a\nb\nc", 4), 3);
}

TEST(SourceReader, CountsDeclaredAndDefinedFunctions) {
    EXPECT_EQ(
        Counted("namespace tw { class A final : public B { public: explicit A(int a) : a_{a}, b_(2) {} ~A();"
                " void F() const override; int G() { if (a_) { return 1; } return 2; } private: int a_; int "
                "b_ = 3; }; }"),
        "A: 4\n");
}

TEST(SourceReader, CountsOperatorsAndTemplates) {
    EXPECT_EQ(
        Counted("struct A { A& operator=(const A&) = delete; bool operator()(int) const { return true; }"
                " bool operator<(const A& b) const; template <class T, int n = 3> T Get() const; };"),
        "A: 4\n");
}

TEST(SourceReader, DoesNotCountDataFriendsAndAliases) {
    EXPECT_EQ(Counted("class A { std::function<void(int)> f_; void (*g_)(int) = nullptr; int h_ = F(1);"
                      " std::vector<int> i_{[](int a) { return a; }(2)}; friend void J(A) {} friend class B;"
                      " using K = int (*)(int); static_assert(sizeof(int) == 4); enum class L { M = N(1) }; "
                      "int o_[3]; };"),
              "A: 0\n");
}

TEST(SourceReader, CountsNestedClassesApart) {
    EXPECT_EQ(Counted("class A { public: struct B { void F(); } b_; struct C c_; void G(struct D*); private: "
                      "class E; };"
                      " struct H { };"),
              "A: 1\nA::B: 1\nH: 0\n");
}

TEST(SourceReader, ReadsLabelsOfSlotsAndSignals) {
    EXPECT_EQ(Counted("class A : public QWidget { Q_OBJECT\n public: A(); signals: void B(); private slots: "
                      "void C(); };"),
              "A: 3\n");
}

}  // namespace
}  // namespace tw::test
