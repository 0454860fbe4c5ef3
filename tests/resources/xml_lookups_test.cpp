#include "fake/fake_list_box.h"
#include "resources/dom_document.h"
#include "resources/xml_fixture.h"
#include "resources/xml_lookups.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>

namespace velkor6::resources {
namespace {

using Entry = fake::FakeListBox::Entry;

const std::u16string sample = uR"(<?xml version="1.0" encoding="windows-1252"?>
<resources>
  <item name="x" number="1" text="one"/>
  <item name="x" number="0" text="zero"/>
  <item name="x" text="plain"/>
  <item name="q&quot;uote" text="double"/>
  <item name="it's" text="single"/>
  <item name="b&quot;o'th" text="both"/>
  <item name="y" number="7"/>
  <item name="n" number="abc" text="a"/>
  <item name="n" number="70000" text="b"/>
  <item name="acc" text="&amp;Ja"/>
</resources>)";

// Another DOM as a COM client would pass it: every call goes by name, and the queries it gets
// are kept.
class ForeignObject final : public Object {
public:
    ForeignObject(ObjectRef inner, std::vector<std::u16string>& queries)
        : inner_(std::move(inner)), queries_(queries) {}

    std::u16string typeName() const override { return u"Foreign" + inner_->typeName(); }
    Variant call(std::u16string_view name, CallKind kind, std::span<Variant> args) override {
        if (name == u"selectNodes")
            queries_.push_back(args[0].string());
        Variant result = inner_->call(name, kind, args);
        if (result.isObject() && result.object())
            return ObjectRef(std::make_shared<ForeignObject>(result.object(), queries_));
        return result;
    }

private:
    ObjectRef inner_;
    std::vector<std::u16string>& queries_;
};

class XmlLookups : public test::WithXml {
protected:
    void SetUp() override {
        WithXml::SetUp();
        if (IsSkipped())
            return;
        own = newDomDocument(*p.module->platform().xml);
        std::array<Variant, 1> text{Variant(sample)};
        ASSERT_TRUE(own->call(u"loadXML", CallKind::Method, text).boolean());
        foreign = std::make_shared<ForeignObject>(own, queries);
    }

    const Locale& loc = p.module->locale();
    ObjectRef own;
    std::vector<std::u16string> queries;
    ObjectRef foreign;
};

TEST_F(XmlLookups, FindsItemsByNameAndNumberInEitherDocument) {
    struct Case {
        std::u16string_view name;
        std::int16_t number;
        std::u16string_view expected;
    };
    const Case cases[] = {
        {u"x", -1, u"one"}, // number not asked
        {u"x", 0, u"zero"},
        {u"x", 2, u""},
        {u"X", -1, u""},
        {u"y", -1, u""}, // no text
        {u"acc", -1, u"&Ja"},
        {u"q\"uote", -1, u"double"},
        {u"it's", -1, u"single"},
        {u"b\"o'th", -1, u"both"},
        {u"x\"] | /resources/item[@name=\"y", -1, u""},
        {u"", -1, u""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.name.begin(), c.name.end()) + " " + std::to_string(c.number));
        EXPECT_EQ(xmlRes(own, c.name, c.number, loc), c.expected);
        EXPECT_EQ(xmlRes(foreign, c.name, c.number, loc), c.expected);
    }
    EXPECT_EQ(queries.front(), u"/resources/item[@name=\"x\"]");
    EXPECT_EQ(queries[1], u"/resources/item[@name=\"x\"][@number=\"0\"]");
    EXPECT_EQ(xmlRes(nullptr, u"x", -1, loc), u"");
}

TEST_F(XmlLookups, ReadsAttributesOfNodes) {
    for (const ObjectRef& doc : {own, foreign}) {
        const auto items = selectItems(doc, u"x", 0, loc);
        ASSERT_EQ(items.size(), 1u);
        EXPECT_EQ(itemProp(items[0], u"text", loc), u"zero");
        EXPECT_EQ(itemProp(items[0], u"missing", loc), u"");
    }
    EXPECT_EQ(itemProp(nullptr, u"text", loc), u"");
    // An object that is no element.
    EXPECT_EQ(itemProp(std::make_shared<fake::FakeListBox>(), u"text", loc), u"");
}

TEST_F(XmlLookups, FillsListsWithTextAndNumber) {
    lib l(p.module);
    for (const ObjectRef& doc : {own, foreign}) {
        auto list = std::make_shared<fake::FakeListBox>();
        list->entries = {{u"old", 9}};
        l.vkrXMLFillList(doc, list, u"x");
        EXPECT_EQ(list->entries, (std::vector<Entry>{{u"one", 1}, {u"zero", 0}, {u"plain", 0}}));

        // A sorted list's new entries land in their place; ItemData follows them.
        auto sorted = std::make_shared<fake::FakeListBox>(true);
        l.vkrXMLFillList(doc, sorted, u"x");
        EXPECT_EQ(sorted->entries, (std::vector<Entry>{{u"one", 1}, {u"plain", 0}, {u"zero", 0}}));

        l.vkrXMLFillList(doc, list, u"n"); // numbers that are no Long count as 0
        EXPECT_EQ(list->entries, (std::vector<Entry>{{u"a", 0}, {u"b", 70000}}));

        l.vkrXMLFillComboWithResList(doc, list, u"x", u"(none)");
        EXPECT_EQ(list->entries,
                  (std::vector<Entry>{{u"(none)", -1}, {u"one", 1}, {u"zero", 0}, {u"plain", 0}}));
        l.vkrXMLFillComboWithResList(doc, list, u"y");
        EXPECT_EQ(list->entries, (std::vector<Entry>{{u"", 7}}));
    }
}

TEST_F(XmlLookups, AFailingFillKeepsWhatItAdded) {
    lib l(p.module);
    auto list = std::make_shared<fake::FakeListBox>();
    list->failAfter = 2;
    l.vkrXMLFillList(own, list, u"x");
    EXPECT_EQ(list->entries, (std::vector<Entry>{{u"one", 1}, {u"zero", 0}}));

    list->entries = {{u"old", 1}};
    l.vkrXMLFillList(nullptr, list, u"x"); // cleared, then the document fails
    EXPECT_TRUE(list->entries.empty());
    l.vkrXMLFillList(own, nullptr, u"x");
}

TEST_F(XmlLookups, FillsTabStripsWithCaptions) {
    lib l(p.module);
    auto tabs = std::make_shared<fake::FakeTabStrip>();
    tabs->tabs->captions = {u"old"};
    l.vkrXMLFillTabStrip(foreign, tabs, u"x");
    EXPECT_EQ(tabs->tabs->captions, (std::vector<std::u16string>{u"one", u"zero", u"plain"}));
    l.vkrXMLFillTabStrip(own, tabs, u"none");
    EXPECT_TRUE(tabs->tabs->captions.empty());
}

TEST_F(XmlLookups, DocumentsAnswerTheirDomMembers) {
    std::array<Variant, 1> arg{Variant(u"/resources/item[@name='x']")};
    const Variant list = own->call(u"selectNodes", CallKind::Method, arg);
    EXPECT_EQ(list.object()->call(u"Length", CallKind::PropertyGet, {}), Variant(std::int32_t{3}));
    std::array<Variant, 1> index{Variant(std::int16_t{3})};
    EXPECT_FALSE(list.object()->call(u"item", CallKind::PropertyGet, index).object());

    const Variant node = own->call(u"selectSingleNode", CallKind::Method, arg);
    std::array<Variant, 1> attribute{Variant(u"missing")};
    EXPECT_TRUE(node.object()->call(u"getAttribute", CallKind::Method, attribute).isNull());
    EXPECT_EQ(node.object()->call(u"nodeName", CallKind::PropertyGet, {}), Variant(u"item"));

    std::array<Variant, 1> bad{Variant(u"/resources/item[")};
    EXPECT_THROW(own->call(u"selectNodes", CallKind::Method, bad), VbError);
    std::array<Variant, 1> notXml{Variant(u"<a>")};
    EXPECT_FALSE(own->call(u"loadXML", CallKind::Method, notXml).boolean());
    EXPECT_EQ(xmlRes(own, u"x", -1, loc), u"");
}

} // namespace
} // namespace velkor6::resources
