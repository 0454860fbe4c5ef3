#include "core/collection.h"
#include "fake/fake_platform.h"
#include "velkor6/lib.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6 {
namespace {

std::vector<std::u16string> strings(const Variant& v) {
    std::vector<std::u16string> out;
    EXPECT_EQ(v.array().element, VarType::String);
    EXPECT_EQ(v.array().bounds.at(0).lower, 0);
    for (const Variant& item : v.array().items)
        out.push_back(item.string());
    return out;
}

TEST(FontList, SortedOnceEachThroughEveryCallByNameMember) {
    fake::FakePlatform fp;
    lib l(fp.module);
    EXPECT_TRUE(strings(l.vkrGlobalVar(u"GetFontList")).empty());

    fp.fonts.setFamilies({u"Verdana", u"@MS Gothic", u"arial", u"DejaVu Sans", u"Arial",
                          u"MS Gothic", u"", u"\u00c4gypten", u"Zapf"});
    // Accents sort after their base letter; of two spellings of a name the first in code
    // order stays.
    const std::vector<std::u16string> sorted = {u"\u00c4gypten", u"Arial",   u"DejaVu Sans",
                                                u"MS Gothic",    u"Verdana", u"Zapf"};
    const auto list = strings(l.vkrGlobalVar(u"getfontlist", u"ignored"));
    EXPECT_EQ(list, sorted);
    EXPECT_EQ(strings(l.vkrProperty(u"GETFONTLIST")), list);

    const Variant object = l.vkrGlobalObj(u"GetFontList");
    auto* fonts = dynamic_cast<Collection*>(object.object().get());
    ASSERT_NE(fonts, nullptr);
    EXPECT_EQ(fonts->count(), 6);
    EXPECT_EQ(fonts->item(Variant(u"dejavu sans")).string(), u"DejaVu Sans");
    EXPECT_EQ(fonts->item(Variant(std::int32_t{4})).string(), u"MS Gothic");

    for (const auto& call :
         {+[](lib& x) { x.vkrGlobalObj(u"Deflate"); }, +[](lib& x) { x.vkrProperty(u"FadeIn"); },
          +[](lib& x) { x.vkrGlobalVar(u"GetFontLists", u""); }}) {
        try {
            call(l);
            ADD_FAILURE() << "no error";
        } catch (const VbError& e) {
            EXPECT_EQ(e.number(), vberr::noSuchMember);
            EXPECT_TRUE(e.source().starts_with(u"velkor6.vkrGlobal") ||
                        e.source() == u"velkor6.vkrProperty");
        }
    }
}

} // namespace
} // namespace velkor6
