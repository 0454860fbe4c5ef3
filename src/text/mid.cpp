// Mid as a statement that may change the length of the text.
#include "text/text_toolkit.h"

namespace velkor6::text {

void midLet(std::u16string& source, Pos start, Pos length, std::u16string_view value) {
    const Pos removed = length == -1 ? static_cast<Pos>(value.size()) : length;
    std::u16string result(left(source, start - 1));
    result += value;
    result += mid(source, start + removed);
    source = std::move(result);
}

} // namespace velkor6::text
