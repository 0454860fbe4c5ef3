#include "resources/pe_builder.h"
#include "resources/pe_image.h"

#include <gtest/gtest.h>

namespace velkor6::resources {
namespace {

using test::Resource;

std::optional<std::string> findText(const PeImage& image, std::u16string_view type,
                                    std::u16string_view name) {
    const auto t = ResourceId::fromText(type);
    const auto n = ResourceId::fromText(name);
    if (!t || !n)
        return std::nullopt;
    const auto bytes = image.find(*t, *n);
    return bytes ? std::optional<std::string>(*bytes) : std::nullopt;
}

const std::vector<Resource>& sampleResources() {
    static const std::vector<Resource> resources = [] {
        std::array<std::u16string, 16> first;
        first[0] = u"zero";
        first[1] = u"one";
        first[15] = u"fifteen";
        std::vector<Resource> r = {
            {u"XML", std::uint16_t{1}, 0, "<resources/>"},
            {u"XML", u"NAMED", 0, "<named/>"},
            {std::uint16_t{23}, std::uint16_t{1}, 0, "html"},
            {std::uint16_t{6}, std::uint16_t{1}, 0, test::stringBlock(first)},
            test::stringResource(17, u"Grüße \u0159"),
            test::stringResource(0xFFFF, u"last"),
            // Of several languages the neutral one counts, else the first.
            {u"LANG", std::uint16_t{1}, 0x409, "english"},
            {u"LANG", std::uint16_t{1}, 0, "neutral"},
            {u"LANG", std::uint16_t{1}, 0x407, "german"},
            {u"LANG", std::uint16_t{2}, 0x40C, "french"},
            {u"LANG", std::uint16_t{2}, 0x407, "german"},
        };
        return r;
    }();
    return resources;
}

TEST(PeImage, FindsResourcesByTypeAndName) {
    const auto image = PeImage::read(test::buildResourceLibrary(sampleResources()));
    ASSERT_TRUE(image);
    struct Case {
        std::u16string_view type, name;
        std::optional<std::string> expected;
    };
    const Case cases[] = {
        {u"XML", u"#1", "<resources/>"},
        {u"xml", u"#01", "<resources/>"}, // names ignore letter case
        {u"XML", u"named", "<named/>"},
        {u"#23", u"#1", "html"},
        {u"XML", u"#2", std::nullopt},
        {u"XML", u"1", std::nullopt}, // without "#" it is a name
        {u"XM", u"#1", std::nullopt},
        {u"HTML", u"#1", std::nullopt},
        {u"LANG", u"#1", "neutral"},
        {u"LANG", u"#2", "german"},
        {u"XML", u"#", std::nullopt},
        {u"XML", u"#-1", std::nullopt},
        {u"XML", u"#65537", std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.type.begin(), c.type.end()) + " " +
                     std::string(c.name.begin(), c.name.end()));
        EXPECT_EQ(findText(*image, c.type, c.name), c.expected);
    }
}

TEST(PeImage, ReadsStringTablesInBlocksOfSixteen) {
    const auto image = PeImage::read(test::buildResourceLibrary(sampleResources()));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->string(0), u"zero");
    EXPECT_EQ(image->string(1), u"one");
    EXPECT_EQ(image->string(2), u"");
    EXPECT_EQ(image->string(15), u"fifteen");
    EXPECT_EQ(image->string(16), u"");
    EXPECT_EQ(image->string(17), u"Grüße \u0159");
    EXPECT_EQ(image->string(0xFFFF), u"last");
    EXPECT_EQ(image->string(0x10000), u"");
    EXPECT_EQ(image->string(100), u"");
}

TEST(PeImage, RefusesWhatIsNoImage) {
    EXPECT_FALSE(PeImage::read(""));
    EXPECT_FALSE(PeImage::read("MZ"));
    EXPECT_FALSE(PeImage::read("<resources/>"));
    std::string image = test::buildResourceLibrary(sampleResources());
    image[0x40] = 'X'; // the signature
    EXPECT_FALSE(PeImage::read(image));

    // An image without resources loads, but has none.
    std::string bare = test::buildResourceLibrary({});
    bare[0x44 + 20 + 92] = 2; // only two data directories: none for resources
    const auto noTree = PeImage::read(bare);
    ASSERT_TRUE(noTree);
    EXPECT_FALSE(noTree->find(ResourceId{u"XML"}, ResourceId{std::uint16_t{1}}));
    EXPECT_EQ(noTree->string(1), u"");
}

// Damaged files must never be read outside their bytes: cut short anywhere, or with any byte of
// the resource tree overwritten, an image either fails to load or answers from its own bytes.
TEST(PeImage, DamagedImagesStayInsideTheirBytes) {
    const std::string image = test::buildResourceLibrary(sampleResources());
    const auto probe = [](std::string bytes) {
        if (const auto damaged = PeImage::read(std::move(bytes))) {
            for (const auto name : {u"#1", u"#2", u"NAMED"})
                (void)findText(*damaged, u"XML", name);
            for (const std::uint32_t id : {0u, 1u, 17u, 0xFFFFu})
                (void)damaged->string(id);
        }
    };
    for (std::size_t size = 0; size < image.size(); size += 7)
        probe(image.substr(0, size));
    for (std::size_t at = 0; at < image.size(); ++at) {
        for (const char value : {'\xFF', '\x80', '\x00'}) {
            std::string damaged = image;
            damaged[at] = value;
            probe(std::move(damaged));
        }
    }
}

} // namespace
} // namespace velkor6::resources
