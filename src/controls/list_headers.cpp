#include "controls/list_headers.h"

#include "core/convert.h"
#include "velkor6/vb_error.h"

#include <array>

namespace velkor6::controls {
namespace {

std::vector<std::u16string_view> split(std::u16string_view s, char16_t separator) {
    std::vector<std::u16string_view> parts;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = s.find(separator, start);
        parts.push_back(s.substr(start, end == std::u16string_view::npos ? end : end - start));
        if (end == std::u16string_view::npos)
            return parts;
        start = end + 1;
    }
}

std::u16string trimmedOfBlanks(std::u16string_view s) {
    const std::size_t first = s.find_first_not_of(u' ');
    if (first == std::u16string_view::npos)
        return {};
    return std::u16string(s.substr(first, s.find_last_not_of(u' ') - first + 1));
}

} // namespace

std::vector<HeaderSpec> parseHeaders(std::u16string_view spec) {
    std::vector<HeaderSpec> columns;
    for (const std::u16string_view column : split(spec, u';')) {
        const std::vector<std::u16string_view> fields = split(column, u'|');
        HeaderSpec h;
        std::u16string_view text = fields[0];
        if (!text.empty()) {
            switch (text.front()) {
            case u'<':
                h.alignment = columnalign::left;
                text.remove_prefix(1);
                break;
            case u'>':
                h.alignment = columnalign::right;
                text.remove_prefix(1);
                break;
            case u'^':
                h.alignment = columnalign::center;
                text.remove_prefix(1);
                break;
            default:
                break;
            }
        }
        h.text = std::u16string(text);
        if (fields.size() > 1)
            h.width = std::u16string(fields[1]);
        if (fields.size() == 3)
            h.key = trimmedOfBlanks(fields[2]);
        columns.push_back(std::move(h));
    }
    return columns;
}

void setHeaders(const ListView& view, std::u16string_view spec, bool clearItems) {
    if (clearItems)
        view.listItems()->call(u"Clear", CallKind::Method, {});
    const ObjectRef headers = view.columnHeaders();
    headers->call(u"Clear", CallKind::Method, {});
    std::int32_t made = 0;
    for (const HeaderSpec& h : parseHeaders(spec)) {
        try {
            Variant width = Variant::missing();
            if (h.width)
                width = Variant(toLong(Variant(*h.width), view.locale()));
            std::array<Variant, 5> args{Variant(made + 1),
                                        h.key ? Variant(*h.key) : Variant::missing(),
                                        Variant(h.text), std::move(width), Variant(h.alignment)};
            headers->call(u"Add", CallKind::Method, args);
            ++made;
        } catch (const VbError&) {
            // This column only; the next one is made all the same.
        }
    }
}

} // namespace velkor6::controls
