#include "core/collection.h"
#include "lib/lib_members.h"
#include "values/fixed_clock.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>
#include <vector>

namespace velkor6::dispatch {
namespace {

class ValuesRows : public ::testing::Test {
protected:
    Variant call(std::u16string_view name, std::vector<Variant>& values) {
        std::vector<Argument> args;
        for (Variant& v : values)
            args.push_back({&v, u""});
        return invoke(libMembers(), target, name, CallKind::Method, args, target.locale());
    }
    Variant call(std::u16string_view name, std::vector<Variant>&& values) {
        return call(name, values);
    }

    lib target{testing::moduleAt(Date{45366.5}, Locale::germanGermany())};
};

TEST_F(ValuesRows, CoerceArgumentsAndApplyDefaults) {
    EXPECT_EQ(call(u"vkrVal", {Variant(u"EUR 1.234,50")}), Variant(1234.5));
    EXPECT_EQ(call(u"VKRVAL", {Variant(std::int32_t{12})}), Variant(12.0));
    EXPECT_EQ(call(u"vkrCVal", {Variant(u"7"), Variant()}), Variant(Date{45366}));
    EXPECT_EQ(call(u"vkrDbl2Hex", {Variant(255.0)}), Variant(u"FF"));
    EXPECT_EQ(call(u"vkrDbl2Hex", {Variant(u"255"), Variant(std::int32_t{4})}), Variant(u"00FF"));
    EXPECT_EQ(call(u"vkrRound", {Variant(2.5), Variant(0.0)}), Variant(3.0));
    EXPECT_EQ(call(u"vkrHexToDec", {Variant(u"FFFF")}), Variant(std::int32_t{65535}));
    EXPECT_EQ(call(u"vkrHex2Dbl", {Variant(u"&HFF")}), Variant(255.0));
    EXPECT_EQ(call(u"vkrCompare", {Variant(1.05), Variant(1.0), Variant(0.1)}), Variant(true));
    EXPECT_EQ(call(u"vkrAND", {Variant(std::int32_t{4}), Variant(std::int32_t{5})}),
              Variant(false));
}

TEST_F(ValuesRows, WriteFractionBackAndRaiseOverflow) {
    std::vector<Variant> args{Variant(0.75), Variant(), Variant()};
    EXPECT_EQ(call(u"vkrBruchrechnung", args), Variant());
    EXPECT_EQ(args[1], Variant(std::int32_t{3}));
    EXPECT_EQ(args[2], Variant(std::int32_t{4}));

    try {
        call(u"vkrDbl2Hex", {Variant(36028797018963968.0)});
        ADD_FAILURE() << "no overflow";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::overflow);
    }
}

TEST_F(ValuesRows, SqlMembersInBothLocales) {
    for (const Locale* loc : {&Locale::germanGermany(), &Locale::englishUS()}) {
        target.module().setLocale(*loc);
        EXPECT_EQ(call(u"vkrSQLFilter",
                       {Variant::array({Variant(u"Name"), Variant(u"Smith"), Variant(u"Active"),
                                        Variant(true), Variant(u"Amount"), Variant(12.5)})}),
                  Variant(u"Name=\"Smith\" AND Active=TRUE AND Amount=12.5"));
        EXPECT_EQ(call(u"vkrSQLDate", {Variant(Date{45366.5})}), Variant(u"#2024/03/15 12:00:00#"));
        EXPECT_EQ(call(u"vkrSQLDate", {Variant(Date{45366.5}), Variant(true)}),
                  Variant(u"CONVERT(DATETIME, '2024-03-15 12:00:00', 102)"));
        EXPECT_EQ(call(u"vkrSQLDouble", {Variant(1234.5)}), Variant(u"1234.5"));
    }
    try {
        call(u"vkrSQLFilter", {Variant::array({Variant(u"A"), Variant(1.0), Variant(u"B")})});
        ADD_FAILURE() << "no subscript error";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::subscriptOutOfRange);
    }
}

TEST_F(ValuesRows, ValueHelpersWriteBackTheirByRefArguments) {
    std::vector<Variant> list{
        Variant::array({Variant(u"b"), Variant(u"C"), Variant(u"a")}, VarType::String)};
    EXPECT_EQ(call(u"vkrBubbleSort", list), Variant());
    EXPECT_EQ(list[0],
              Variant::array({Variant(u"a"), Variant(u"b"), Variant(u"C")}, VarType::String));

    auto collection = std::make_shared<Collection>();
    collection->add(Variant(1.0));
    std::vector<Variant> clear{Variant(ObjectRef(collection))};
    call(u"vkrClearCollection", clear);
    EXPECT_EQ(collection->count(), 0);
    EXPECT_EQ(clear[0], Variant(ObjectRef(collection)));
    clear.push_back(Variant(true));
    call(u"vkrClearCollection", clear);
    EXPECT_EQ(clear[0], Variant::nothing());

    EXPECT_EQ(call(u"vkrIsEmpty", {Variant(u"")}), Variant(true));
    EXPECT_EQ(call(u"vkrIsEmpty", {Variant(false)}), Variant(false));
    EXPECT_EQ(call(u"vkrGetNotNullValue", {Variant::null()}), Variant());
    EXPECT_EQ(call(u"vkrIsInList",
                   {Variant(std::int16_t{2}),
                    Variant::array({Variant(std::int32_t{1}), Variant(2.0), Variant(3.0)})}),
              Variant(true));
    EXPECT_EQ(call(u"vkrArrayHasData", {Variant(VariantArray{})}), Variant(false));
    EXPECT_EQ(call(u"vkrArrayHasData", {Variant(std::int32_t{1})}), Variant(false));
}

} // namespace
} // namespace velkor6::dispatch
