#include "core/collection.h"
#include "core/text.h"
#include "values/checks.h"
#include "values/lists.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

namespace velkor6::values {
namespace {

const Locale& us() {
    return Locale::englishUS();
}

TEST(ValuesChecks, EmptinessAndNull) {
    const Variant emptyValues[] = {
        Variant(),     Variant::null(), Variant(std::int16_t{0}), Variant(std::int32_t{0}),
        Variant(0.0f), Variant(0.0),    Variant(Currency{0}),     Variant(Date{0}),
        Variant(u"")};
    for (const Variant& v : emptyValues)
        EXPECT_TRUE(isEmptyValue(v)) << ::testing::PrintToString(static_cast<int>(v.type()));
    const Variant otherValues[] = {
        Variant(false),    Variant(std::uint8_t{0}),  Variant(Decimal{}), Variant(u" "),
        Variant(0.5),      Variant(std::int32_t{-1}), Variant::nothing(), Variant::missing(),
        Variant::array({})};
    for (const Variant& v : otherValues)
        EXPECT_FALSE(isEmptyValue(v)) << ::testing::PrintToString(static_cast<int>(v.type()));

    EXPECT_EQ(notNull(Variant::null()), Variant());
    EXPECT_EQ(notNull(Variant(u"x")), Variant(u"x"));
    EXPECT_EQ(notNull(Variant()), Variant());
}

TEST(ValuesChecks, ListMembershipAndArrayBounds) {
    const Variant numbers =
        Variant::array({Variant(std::int16_t{1}), Variant(2.0), Variant(std::int32_t{3})});
    EXPECT_TRUE(isInList(Variant(std::int32_t{2}), numbers.array(), us())); // across types
    EXPECT_FALSE(isInList(Variant(std::int32_t{4}), numbers.array(), us()));
    const Variant letters = Variant::array({Variant(u"a"), Variant(u"b")});
    EXPECT_FALSE(isInList(Variant(u"A"), letters.array(), us())); // case-sensitive
    EXPECT_TRUE(isInList(Variant(u"b"), letters.array(), us()));
    EXPECT_FALSE(isInList(Variant::null(), letters.array(), us()));
    // A failing comparison ends the search, even when a later element would match.
    const Variant withNull = Variant::array({Variant::null(), Variant(u"b")});
    EXPECT_FALSE(isInList(Variant(u"b"), withNull.array(), us()));
    EXPECT_FALSE(isInList(Variant(u"a"), Variant::array({}).array(), us()));
    EXPECT_FALSE(isInList(Variant(u"a"), VariantArray{}, us()));
    VariantArray oneBased; // the search starts at index 0, which does not exist here
    oneBased.bounds = {{1, 1}};
    oneBased.items = {Variant(u"a")};
    EXPECT_FALSE(isInList(Variant(u"a"), oneBased, us()));

    EXPECT_TRUE(arrayHasData(numbers));
    EXPECT_TRUE(arrayHasData(Variant::array({}))); // bounds 0 to -1
    EXPECT_FALSE(arrayHasData(Variant(VariantArray{})));
    EXPECT_FALSE(arrayHasData(Variant(u"abc")));
}

TEST(ValuesLists, SortIsStableCaseInsensitiveAndFast) {
    Variant list = Variant::array(
        {Variant(u"b"), Variant(u"A"), Variant(u"a"), Variant(u"B"), Variant(u"c"), Variant(u"")},
        VarType::String);
    sortText(list.array());
    EXPECT_EQ(list, Variant::array({Variant(u""), Variant(u"A"), Variant(u"a"), Variant(u"b"),
                                    Variant(u"B"), Variant(u"c")},
                                   VarType::String));

    // 30,000 strings: a quadratic sort would take far longer than this test may.
    std::vector<Variant> many;
    for (int i = 0; i < 30000; ++i) {
        const auto n = static_cast<unsigned>(i) * 2654435761u % 1000003u;
        std::u16string s;
        for (unsigned k = n; k != 0; k /= 26)
            s.push_back(static_cast<char16_t>((k % 2 ? u'a' : u'A') + k % 26));
        many.emplace_back(std::move(s));
    }
    Variant big = Variant::array(std::move(many), VarType::String);
    sortText(big.array());
    const auto& items = big.array().items;
    EXPECT_TRUE(std::is_sorted(items.begin(), items.end(), [](const Variant& a, const Variant& b) {
        return compareStrings(a.string(), b.string(), Compare::Text) < 0;
    }));
}

// Any object with Count and Remove can be cleared, not only our Collection.
class Stack final : public Object {
public:
    std::vector<int> items{1, 2, 3};
    std::u16string typeName() const override { return u"Stack"; }
    Variant call(std::u16string_view name, CallKind, std::span<Variant> args) override {
        if (name == u"Count")
            return Variant(static_cast<std::int32_t>(items.size()));
        items.erase(items.begin() + (args[0].longValue() - 1));
        return Variant();
    }
};

TEST(ValuesLists, ClearCollectionEmptiesAndReleases) {
    auto own = std::make_shared<Collection>();
    own->add(Variant(1.0));
    own->add(Variant(2.0), Variant(u"k"));
    ObjectRef ref = own;
    clearCollection(ref, false, us());
    EXPECT_EQ(own->count(), 0);
    EXPECT_EQ(ref, own);
    clearCollection(ref, true, us());
    EXPECT_EQ(ref, nullptr);
    clearCollection(ref, true, us()); // Nothing: no error

    auto stack = std::make_shared<Stack>();
    ObjectRef other = stack;
    clearCollection(other, false, us());
    EXPECT_TRUE(stack->items.empty());
}

} // namespace
} // namespace velkor6::values
