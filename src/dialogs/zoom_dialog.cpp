#include "dialogs/zoom_dialog.h"

#include "core/convert.h"
#include "core/text.h"
#include "dialogs/message_buttons.h"
#include "dialogs/message_layout.h"
#include "resources/resource_text.h"
#include "velkor6/vb_error.h"

#include <algorithm>
#include <array>
#include <optional>

namespace velkor6::dialogs {
namespace {

constexpr std::int32_t gap = 8;
constexpr PixelSize minimumSize{2 * buttonWidth + 3 * gap, 120};

std::optional<Variant> property(const ObjectRef& source, std::u16string_view name) {
    try {
        return source->call(name, CallKind::PropertyGet, {});
    } catch (const std::exception&) {
        return std::nullopt; // the control lacks it
    }
}

} // namespace

bool zoomableType(std::u16string_view typeName) {
    constexpr std::array<std::u16string_view, 7> types{
        u"TEXTBOX", u"COMBOBOX", u"NODE", u"LISTITEM", u"LISTBOX", u"QSCOMBO", u"QZCOMBO"};
    const std::u16string upper = upperCase(typeName);
    return std::find(types.begin(), types.end(), upper) != types.end();
}

TwipsSize zoomText(Module& module, const ObjectRef& source, std::u16string_view description,
                   bool ignoreAttributes, TwipsSize size) {
    const Locale& locale = module.locale();
    if (!source || !zoomableType(source->typeName()))
        throw VbError(5);
    DialogForm form;
    form.kind = DialogForm::Kind::zoom;
    form.title = description.empty() ? std::u16string(libraryTitle) : std::u16string(description);
    form.resizable = true;
    form.minimumSize = minimumSize;
    form.clientSize = {
        std::max(minimumSize.width,
                 (size.width > 0 ? size.width : zoomDesignedWidthTwips) / twipsPerPixel),
        std::max(minimumSize.height,
                 (size.height > 0 ? size.height : zoomDesignedHeightTwips) / twipsPerPixel)};

    DialogField field;
    field.text = toString(source->call(u"Text", CallKind::PropertyGet, {}), locale);
    field.multiLine = true;
    field.selectAllOnFocus = true;
    if (!ignoreAttributes) {
        if (const auto v = property(source, u"Enabled"))
            field.enabled = toBoolean(*v, locale);
        if (const auto v = property(source, u"Locked"))
            field.locked = toBoolean(*v, locale);
        if (const auto v = property(source, u"ToolTipText"))
            field.toolTip = toString(*v, locale);
    }
    const PixelSize client = form.clientSize;
    const std::int32_t buttonsTop = client.height - gap - buttonHeight;
    field.rect = {gap, gap, client.width - 2 * gap, buttonsTop - 2 * gap};
    form.field = std::move(field);
    const std::int16_t language = module.currentLanguage();
    form.buttons = {captionedButton(resources::resText(module, u"cmdOK", language), 1),
                    captionedButton(resources::resText(module, u"cmdCancel", language), 2)};
    form.buttons[0].rect = {client.width - 2 * (buttonWidth + gap), buttonsTop, buttonWidth,
                            buttonHeight};
    form.buttons[1].rect = {client.width - buttonWidth - gap, buttonsTop, buttonWidth,
                            buttonHeight};
    form.defaultButton = 0;
    form.cancelButton = 1;

    std::int32_t result = 0;
    const DialogEvent closing =
        module.platform().dialogs->showModal(form, [&](const DialogEvent& event) {
            const auto decided = buttonDecision(form, event);
            if (decided)
                result = *decided;
            return decided.has_value();
        });
    if (result == 1) {
        std::array<Variant, 1> text{Variant(closing.text)};
        source->call(u"Text", CallKind::PropertyLet, text);
    }
    return {closing.clientSize.width * twipsPerPixel, closing.clientSize.height * twipsPerPixel};
}

} // namespace velkor6::dialogs
