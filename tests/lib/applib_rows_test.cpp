#include "fake/fake_platform.h"
#include "lib/applib_members.h"
#include "lib/lib_members.h"
#include "velkor6/record_object.h"
#include "velkor6/vb_error.h"

#include <gtest/gtest.h>

namespace velkor6::dispatch {
namespace {

class ApplibRows : public ::testing::Test {
protected:
    ApplibRows() { fp.files.addFolder(u"C:\\Apps\\Sales"); }

    // A host's App object as a script would pass it.
    ObjectRef hostApp(std::u16string path) {
        return std::make_shared<RecordObject>(
            u"App",
            std::vector<RecordObject::Field>{{u"Path", std::move(path)},
                                             {u"EXEName", u"Sales"},
                                             {u"Major", std::int16_t{6}},
                                             {u"Minor", std::int16_t{1}},
                                             {u"Revision", std::int16_t{23}}},
            Locale::englishUS());
    }

    Variant initApp(Variant host, Variant name = u"Sales") {
        std::vector<Argument> args{{&host, u""}, {&name, u""}};
        return invoke(libMembers(), target, u"vkrInitApp", CallKind::Method, args, target.locale());
    }

    int errorOf(Variant host) {
        try {
            initApp(std::move(host));
        } catch (const VbError& e) {
            return e.number();
        }
        return 0;
    }

    fake::FakePlatform fp;
    lib target{fp.module};
};

TEST_F(ApplibRows, InitAppReturnsAContextThatAnswersByName) {
    const Variant result = initApp(hostApp(u"C:\\Apps\\Sales"));
    ASSERT_TRUE(result.isObject());
    Object& app = *result.object();
    EXPECT_EQ(app.typeName(), u"applib");
    EXPECT_EQ(app.call(u"INIFILE", CallKind::PropertyGet, {}),
              Variant(u"C:\\Apps\\Sales\\Sales.ini"));

    // A property let assigns its last argument even when optional parameters are left out.
    std::vector<Variant> let{u"Db", u"File", u"C:\\Apps\\Sales\\x.mdb"};
    app.call(u"stringValue", CallKind::PropertyLet, let);
    EXPECT_EQ(fp.files.readFile(u"C:\\Apps\\Sales\\Sales.ini").value(),
              "[Application]\r\nLanguage=2\r\n[Db]\r\nFile=%AppPath%\\x.mdb\r\n");
    std::vector<Variant> get{u"Db", u"File"};
    EXPECT_EQ(app.call(u"stringValue", CallKind::PropertyGet, get),
              Variant(u"C:\\Apps\\Sales\\x.mdb"));
    std::vector<Variant> typed{u"Db", u"Count", u"12", true};
    EXPECT_EQ(app.call(u"longValue", CallKind::Method, typed), Variant(std::int32_t{12}));
    EXPECT_EQ(app.call(u"language", CallKind::PropertyGet, {}), Variant(std::int16_t{2}));
}

TEST_F(ApplibRows, InitAppNeedsAnApplicationObject) {
    EXPECT_EQ(errorOf(Variant::nothing()), vberr::objectNotSet);
    EXPECT_EQ(errorOf(Variant(u"C:\\Apps\\Sales")), vberr::typeMismatch);
    EXPECT_EQ(
        errorOf(Variant(ObjectRef(std::make_shared<RecordObject>(
            u"App", std::vector<RecordObject::Field>{{u"Path", u"C:\\"}}, Locale::englishUS())))),
        vberr::noSuchMember);
}

} // namespace
} // namespace velkor6::dispatch
