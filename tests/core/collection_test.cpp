#include "core/collection.h"
#include "fake/error_of.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

std::u16string contents(const Collection& c) {
    std::u16string s;
    for (std::int32_t i = 1; i <= c.count(); ++i)
        s += c.item(Variant(i)).string();
    return s;
}

TEST(Collection, KeysPositionsAndErrors) {
    Collection c;
    c.add(Variant(u"b"), Variant(u"Bee"));
    c.add(Variant(u"d"));
    c.add(Variant(u"a"), Variant(u"Ay"), Variant(std::int32_t{1}));                // before 1
    c.add(Variant(u"c"), Variant::missing(), Variant::missing(), Variant(u"bee")); // after key
    EXPECT_EQ(contents(c), u"abcd");
    EXPECT_EQ(c.item(Variant(u"AY")), Variant(u"a")); // keys ignore case
    EXPECT_EQ(c.item(Variant(2.5)), Variant(u"b"));   // positions round half to even

    c.remove(Variant(u"ay"));
    EXPECT_EQ(contents(c), u"bcd");
    EXPECT_EQ(c.item(Variant(u"Bee")), Variant(u"b")); // key positions follow removals
    c.remove(Variant(std::int16_t{3}));
    EXPECT_EQ(contents(c), u"bc");
    c.add(Variant(u"z"), Variant(u"Ay")); // a removed key is free again
    EXPECT_EQ(c.item(Variant(u"ay")), Variant(u"z"));

    EXPECT_EQ(errorOf([&] { c.add(Variant(u"x"), Variant(u"BEE")); }), vberr::duplicateKey);
    EXPECT_EQ(errorOf([&] { c.item(Variant(std::int32_t{0})); }), vberr::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { c.item(Variant(std::int32_t{4})); }), vberr::subscriptOutOfRange);
    EXPECT_EQ(errorOf([&] { c.item(Variant(u"nope")); }), vberr::invalidCall);
    EXPECT_EQ(errorOf([&] { c.add(Variant(u"x"), Variant(std::int32_t{5})); }),
              vberr::typeMismatch);
    EXPECT_EQ(errorOf([&] {
                  c.add(Variant(u"x"), Variant::missing(), Variant(std::int32_t{1}),
                        Variant(std::int32_t{1}));
              }),
              vberr::invalidCall);
    EXPECT_EQ(c.count(), 3); // failed calls changed nothing
}

TEST(Collection, ReachableByName) {
    auto c = std::make_shared<Collection>();
    Object& o = *c;
    EXPECT_EQ(o.typeName(), u"Collection");
    std::vector<Variant> add{Variant(42.0), Variant(u"answer")};
    o.call(u"add", CallKind::Method, add);
    std::vector<Variant> addLast{Variant(u"x")};
    o.call(u"Add", CallKind::Method, addLast);
    EXPECT_EQ(o.call(u"Count", CallKind::PropertyGet, {}), Variant(std::int32_t{2}));
    std::vector<Variant> key{Variant(u"ANSWER")};
    EXPECT_EQ(o.call(u"Item", CallKind::Method, key), Variant(42.0));
    EXPECT_EQ(o.call(u"", CallKind::PropertyGet, key), Variant(42.0));
    std::vector<Variant> first{Variant(std::int32_t{1})};
    o.call(u"Remove", CallKind::Method, first);
    EXPECT_EQ(c->count(), 1);
    EXPECT_EQ(errorOf([&] { o.call(u"Clear", CallKind::Method, {}); }), vberr::noSuchMember);
    EXPECT_EQ(errorOf([&] { o.call(u"Remove", CallKind::Method, {}); }),
              vberr::argumentNotOptional);
}

} // namespace
} // namespace velkor6
