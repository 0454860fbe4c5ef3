// Resource libraries made byte by byte for the tests: a 32-bit PE image with nothing but a
// resource section.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace velkor6::test {

// A resource's type or name: a name, or a number.
using Key = std::variant<std::u16string, std::uint16_t>;

struct Resource {
    Key type;
    Key name;
    std::uint16_t language = 0;
    std::string data;
};

std::string buildResourceLibrary(const std::vector<Resource>& resources);

// One block of a string table: block n holds the strings 16 * (n - 1) to 16 * n - 1.
std::string stringBlock(const std::array<std::u16string, 16>& strings);

// The resource of type 6 that holds the string id, with only that string.
Resource stringResource(std::uint32_t id, const std::u16string& text, std::uint16_t language = 0);

} // namespace velkor6::test
