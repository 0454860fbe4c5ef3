#include "fake/fake_list_box.h"
#include "lib/applib_members.h"
#include "lib/lib_members.h"
#include "resources/dom_document.h"
#include "resources/pe_builder.h"
#include "resources/xml_fixture.h"

#include <gtest/gtest.h>

namespace velkor6::dispatch {
namespace {

class ResourceRows : public test::WithXml {
protected:
    void SetUp() override {
        WithXml::SetUp();
        if (IsSkipped())
            return;
        doc = resources::newDomDocument(*p.module->platform().xml);
        std::array<Variant, 1> text{
            Variant(u"<resources><item name=\"x\" number=\"0\" text=\"zero\"/>"
                    u"<item name=\"x\" number=\"1\" text=\"one\"/>"
                    u"</resources>")};
        doc->call(u"loadXML", CallKind::Method, text);
        p.files.addFolder(u"C:\\App");
    }

    Variant call(std::u16string_view name, std::vector<Variant> values) {
        std::vector<Argument> args;
        for (Variant& v : values)
            args.push_back({&v, {}});
        return invoke(libMembers(), l, name, CallKind::Method, args, l.locale());
    }

    lib l{p.module};
    ObjectRef doc;
};

TEST_F(ResourceRows, LookupsTakeTheDocumentAndOptionalNumber) {
    EXPECT_EQ(call(u"vkrXMLRes", {doc, u"x"}), Variant(u"zero"));
    EXPECT_EQ(call(u"vkrXMLRes", {doc, u"x", std::int16_t{1}}), Variant(u"one"));
    EXPECT_EQ(call(u"vkrXMLRes", {Variant::nothing(), u"x"}), Variant(u""));

    auto combo = std::make_shared<fake::FakeListBox>();
    call(u"vkrXMLFillComboWithResList", {doc, ObjectRef(combo), u"x"});
    EXPECT_EQ(combo->entries.size(), 2u);
}

TEST_F(ResourceRows, ResourceLibrariesAreReachedThroughTheContext) {
    auto app = l.vkrInitApp(HostApp{u"C:\\App", u"App", 1, 0, 0}, u"App");
    app->stringValueLet(u"Application", u"ResourceDLL", u"C:\\App\\Res%L.dll");
    p.files.addFile(u"C:\\App\\ResEN.dll",
                    test::buildResourceLibrary({{u"XML", std::uint16_t{1}, 0, "<r/>"}}));
    p.files.addFile(u"C:\\App\\Res2.dll",
                    test::buildResourceLibrary({test::stringResource(5, u"five")}));
    const ObjectRef context = applibObject(app);

    std::array<Variant, 2> args{Variant(std::int32_t{1}), Variant(u"XML")};
    EXPECT_EQ(context->call(u"loadRes", CallKind::Method, args), Variant(u"<r/>"));
    const Variant list = context->call(u"getLanguagesList", CallKind::Method, {});
    ASSERT_TRUE(list.isArray());
    EXPECT_EQ(list.array().items, std::vector<Variant>{Variant(u"2;English;EN")});

    EXPECT_EQ(call(u"vkrRes", {context, std::int32_t{5}}), Variant(u"five"));
    try {
        call(u"vkrRes", {doc, std::int32_t{5}});
        ADD_FAILURE() << "another object is no context";
    } catch (const VbError& e) {
        EXPECT_EQ(e.number(), vberr::typeMismatch);
    }
    EXPECT_THROW(call(u"vkrRes", {Variant::nothing(), std::int32_t{5}}), VbError);
}

} // namespace
} // namespace velkor6::dispatch
