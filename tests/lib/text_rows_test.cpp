#include "lib/lib_members.h"
#include "velkor6/module.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <vector>

namespace velkor6::dispatch {
namespace {

class TextRows : public ::testing::Test {
protected:
    // Arguments as (name, value) pairs; an empty name passes the value by position.
    Variant call(std::u16string_view name, std::vector<std::pair<std::u16string, Variant*>> given,
                 CallKind kind = CallKind::Method) {
        std::vector<Argument> args;
        for (auto& [argName, value] : given)
            args.push_back({value, argName});
        return invoke(libMembers(), target, name, kind, args, target.locale());
    }

    lib target{std::make_shared<Module>(std::make_unique<Platform>(), Locale::englishUS())};
};

TEST_F(TextRows, FindWritesTheMatchedAlternativeBack) {
    Variant source(u"Select a, b FROM t"), find(u"from|select"), found;
    EXPECT_EQ(call(u"vkrFindSubString", {{u"", &source}, {u"", &find}}), Variant(std::int16_t{1}));
    Variant no(false), start(u"2");
    EXPECT_EQ(call(u"VKRFINDSUBSTRING", {{u"", &source},
                                         {u"", &find},
                                         {u"iStartSearch", &start},
                                         {u"bFindFirst", &no},
                                         {u"sFound", &found}}),
              Variant(std::int16_t{13}));
    EXPECT_EQ(found, Variant(u"from"));
    // Not found: sFound keeps its value.
    Variant other(u"where");
    EXPECT_EQ(call(u"vkrFindSubString", {{u"", &source}, {u"", &other}, {u"sFound", &found}}),
              Variant(std::int16_t{0}));
    EXPECT_EQ(found, Variant(u"from"));
}

TEST_F(TextRows, SeparateFillsItsThreeByRefStrings) {
    Variant source(u" a = b "), find(u"="), before, term(std::int16_t{7}), after;
    EXPECT_EQ(call(u"vkrSeparateString",
                   {{u"", &source}, {u"", &find}, {u"", &before}, {u"", &term}, {u"", &after}}),
              Variant());
    EXPECT_EQ(before, Variant(u"a"));
    EXPECT_EQ(term, Variant(u"="));
    EXPECT_EQ(after, Variant(u"b"));
}

TEST_F(TextRows, DefaultsAndResultsOfTheOtherMembers) {
    Variant source(u"x = \"a\" & a"), a(u"a"), b(u"b"), sA(u"''"), three(std::int16_t{3});
    EXPECT_EQ(call(u"vkrReplaceInString", {{u"", &source}, {u"", &a}, {u"", &b}}),
              Variant(u"x = \"a\" & b"));
    EXPECT_EQ(call(u"vkrReplaceInStringExt", {{u"", &source}, {u"", &a}, {u"", &b}}),
              Variant(u"x = \"b\" & b"));
    EXPECT_EQ(call(u"vkrCountSubString", {{u"", &source}, {u"", &a}}), Variant(std::int16_t{2}));
    EXPECT_EQ(call(u"vkrHasSubString", {{u"", &source}, {u"", &a}}), Variant(std::int16_t{-1}));
    EXPECT_EQ(call(u"vkrFindLastSubString", {{u"", &source}, {u"", &a}}),
              Variant(std::int16_t{11}));
    Variant sql(u"x 'a' y"), four(std::int16_t{4}), one(std::int16_t{1});
    EXPECT_EQ(call(u"vkrCountSubStringExt", {{u"", &sql}, {u"", &a}, {u"sNotInSigns", &sA}}),
              Variant(std::int16_t{0}));
    EXPECT_EQ(call(u"vkrIsInSigns", {{u"", &sql}, {u"", &sA}, {u"", &four}, {u"", &one}}),
              Variant(true));
    Variant number(u"(1.5)"), two(std::int16_t{2});
    EXPECT_EQ(call(u"vkrIsNumericWord", {{u"", &number}, {u"", &two}, {u"", &three}}),
              Variant(true));
    Variant select(u"SELECT a FROM t"), s(u"select"), f(u"from");
    EXPECT_EQ(call(u"vkrGetSubString", {{u"", &select}, {u"", &s}, {u"", &f}}), Variant(u"a"));
}

TEST_F(TextRows, CountOverflowReachesTheCaller) {
    Variant source(u"abc"), empty(u"b|");
    try {
        call(u"vkrCountSubString", {{u"", &source}, {u"", &empty}});
        ADD_FAILURE() << "no overflow";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::overflow);
    }
}

TEST_F(TextRows, MidReadsAndAssigns) {
    Variant source(u"abcdef"), start(std::int32_t{2}), length(std::int32_t{2}), value(u"XYZ");
    EXPECT_EQ(call(u"vkrMid", {{u"", &source}, {u"", &start}}, CallKind::PropertyGet),
              Variant(u"bcdef"));
    EXPECT_EQ(call(u"vkrMid", {{u"", &source}, {u"", &start}, {u"", &length}}), Variant(u"bc"));
    EXPECT_EQ(call(u"vkrMid", {{u"", &source}, {u"", &start}, {u"vNewValue", &value}},
                   CallKind::PropertyLet),
              Variant());
    EXPECT_EQ(source, Variant(u"aXYZef"));
    EXPECT_EQ(call(u"vkrMid",
                   {{u"", &source}, {u"", &start}, {u"", &length}, {u"vNewValue", &value}},
                   CallKind::PropertyLet),
              Variant());
    EXPECT_EQ(source, Variant(u"aXYZZef"));
}

} // namespace
} // namespace velkor6::dispatch
