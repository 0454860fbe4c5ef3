#include "lib/dispatch.h"

#include "core/convert.h"
#include "core/text.h"
#include "velkor6/vb_error.h"

namespace velkor6::dispatch {

bool sameName(std::u16string_view a, std::u16string_view b) {
    return textEqual(a, b, Compare::Text);
}

void throwNoSuchMember(std::u16string_view) {
    throw VbError(vberr::noSuchMember);
}

} // namespace velkor6::dispatch
