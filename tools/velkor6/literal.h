// VB literals as the command line writes them, and back.
#pragma once

#include "velkor6/locale.h"
#include "velkor6/variant.h"

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6::cli {

// A command line or script line the program cannot use: the message names the problem. The
// program answers it with exit status 2, unlike an error a member raises.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// "Missing" stands for an omitted optional argument.
struct ParsedArgument {
    std::u16string name; // for name:=value
    Variant value;
};

// Reads a whole text as one literal: "text" (with "" for a quote, pieces joined by & and
// Chr(N)), whole numbers (Integer, Long, else Double), suffixes % & ! # @, decimals, &H / &O,
// #yyyy-mm-dd[ hh:nn[:ss]]# (years 0100 to 9999), True, False, Null, Empty, Nothing, Missing
// and Array(...). nullopt when the text is not exactly one literal; raises UsageError for a
// literal whose value its type cannot hold (32768%, 1E39!, #0050-01-01#) and for Array(...)
// nested deeper than maxArrayDepth.
inline constexpr int maxArrayDepth = 100;
std::optional<Variant> parseLiteral(std::u16string_view text);

// One command-line argument: "name:=literal" or a literal; any other text is a String as
// written. A text that starts like a literal but is none (an unterminated "..., #2024-13-45#,
// &HZZ, an unbalanced Array(...) raises UsageError naming the problem.
ParsedArgument parseCommandArgument(std::u16string_view text);

// One line of a script: calls in VB syntax separated by ":", each member(arg, , name:=value) or
// member arg, arg, with "= value" after it for a property assignment; a comment (' or Rem)
// ends the line, and a byte-order mark may start it. Raises UsageError for a line that does
// not parse; then none of its calls run.
struct ParsedCall {
    std::u16string member;
    std::vector<ParsedArgument> arguments;
    std::optional<Variant> assigned;
};
std::vector<ParsedCall> parseScriptLine(std::u16string_view line);

// The typed literal of a value: 1% 2& 1.5! 1.5# 12.5@ True Empty Null Nothing #2024-03-15#
// (years always with four digits: #0100-01-01#), "text" with Chr(N) for control characters,
// Array(...). Values no literal writes come out as VB shows them: 1.#INF#, -1.#IND#, and a
// date serial outside the calendar as CDate(...).
std::u16string typedLiteral(const Variant& v);

} // namespace velkor6::cli
