// Form captions in the application's language and the language chooser: the `applib` members
// and their rows.
#include "core/convert.h"
#include "dialogs/language_chooser.h"
#include "lib/applib_members.h"
#include "resources/form_captions.h"
#include "resources/resource_text.h"

namespace velkor6 {

std::int32_t applib::loadFormCaption(const ObjectRef& oForm, std::u16string_view sCaptions,
                                     std::u16string_view sFormName) {
    if (!oForm)
        return 0;
    try {
        Platform& p = module_->platform();
        if (!p.fileSystem || !p.xml)
            return 0;
        const std::optional<std::u16string> text =
            resources::captionsText(*p.fileSystem, sCaptions);
        if (!text)
            return 0;
        const std::shared_ptr<XmlDocument> document = p.xml->createDocument();
        if (!document->loadXml(*text))
            return 0;
        const std::u16string formName =
            sFormName.empty() ? toString(oForm->call(u"Name", CallKind::PropertyGet, {}), locale())
                              : std::u16string(sFormName);
        const std::vector<resources::CaptionItem> items =
            resources::formCaptions(*document, formName, language());
        return resources::applyCaptions(*oForm, formName, items, locale());
    } catch (const std::exception&) {
        return 0;
    }
}

std::int16_t applib::chooseLanguage() {
    try {
        Platform& p = module_->platform();
        if (!p.dialogs)
            return 0;
        std::vector<std::u16string> list;
        for (const Variant& entry : getLanguagesList().items)
            list.push_back(entry.string());
        const std::vector<dialogs::LanguageEntry> languages = dialogs::languageEntries(list);
        if (languages.empty())
            return 0;
        const std::int16_t current = language();
        std::u16string cancel = resources::resText(*module_, u"cmdCancel", current);
        if (cancel.empty())
            cancel = u"Cancel";
        const std::int16_t chosen = dialogs::chooseLanguage(*p.dialogs, languages, current, cancel);
        if (chosen > 0)
            languageLet(chosen);
        return chosen;
    } catch (const std::exception&) {
        return 0;
    }
}

} // namespace velkor6

namespace velkor6::dispatch {

void addCaptionMembers(Table<applib>& t) {
    using T = VarType;
    t.push_back(
        {23,
         u"loadFormCaption",
         CallKind::Method,
         {required(u"oForm", T::Object), required(u"sCaptions", T::String),
          optional(u"sFormName", T::String, u"")},
         T::Long,
         [](applib& a, Args& r) -> Variant {
             return a.loadFormCaption(r[0].object(), r.str(1), r.str(2));
         },
         u"Captions oForm and its controls in the context's language from the captions "
         u"document sCaptions (XML text, or the path of an XML file); returns how many captions "
         u"were set.",
         u"The captions document has the resource document's shape: a root element "
         u"\"resources\" holding \"item\" elements with the attributes form (the form's Name), "
         u"name (a control's Name, or the form's own Name for its caption), number (optional: "
         u"the Index of a control-array element), langid and text. Example:\n\n"
         u"    <resources fallback=\"1\">\n"
         u"      <item form=\"frmMain\" name=\"frmMain\" langid=\"2\" text=\"Customers\"/>\n"
         u"      <item form=\"frmMain\" name=\"cmdOK\" langid=\"2\" text=\"&amp;Save\"/>\n"
         u"      <item form=\"frmMain\" name=\"lblField\" number=\"0\" langid=\"2\" "
         u"text=\"Name\"/>\n"
         u"      <item form=\"frmMain\" name=\"cmdOK\" langid=\"1\" text=\"&amp;Speichern\"/>\n"
         u"    </resources>\n\n"
         u"sFormName (default: oForm.Name) picks the items whose form attribute matches, letter "
         u"case ignored. The language is the context's language (the member language). For "
         u"every name and number without an item in that language, the item of the fallback "
         u"language counts: the root's fallback attribute, 1 (German) without one; a language "
         u"with no items at all therefore gets the fallback's captions. An item named like the "
         u"form (without number) sets oForm.Caption; any other sets the Caption, or where the "
         u"control has none the Text, of the control with that Name in oForm.Controls (Count "
         u"and Item from 0, each control's Name and, for array elements, Index); an item with a "
         u"number matches only the element with that Index, one without only a control in no "
         u"array. Controls the form lacks, and controls that take neither property, are "
         u"skipped. sCaptions starting with \"<\" (after blanks) is the document itself; any "
         u"other text names a file, read as UTF-8 or ANSI (UTF-16 with a byte-order mark). "
         u"Errors are trapped: Nothing, a file that cannot be read or a document that is not "
         u"well-formed give 0 and change nothing."});
    t.push_back(
        {24,
         u"chooseLanguage",
         CallKind::Method,
         {},
         T::Integer,
         [](applib& a, Args&) -> Variant { return a.chooseLanguage(); },
         u"Shows the language chooser and makes the chosen language the context's language; "
         u"returns its number, 0 when the user cancelled.",
         u"The chooser lists the languages of getLanguagesList (those whose resource library is "
         u"on disk), one button per language captioned \"name (extension)\", in that order, "
         u"with the current language's button as the default (Enter) and a Cancel button "
         u"(captioned cmdCancel in the current language) under them; title and prompt are "
         u"German (\"Sprache\") when the current language is 1 and English (\"Language\") "
         u"otherwise. Choosing a language stores it as the member language let does (setting "
         u"Language of section Application, and the language of the library's dialogs) and "
         u"returns its number. Cancel, Esc and the close box return 0 and change nothing. "
         u"Without any language on disk nothing is shown and the result is 0. With the "
         u"headless dialog host, VELKOR6_ANSWERS names the choice by the language number. "
         u"Example: If oApp.chooseLanguage() <> 0 Then oApp.loadFormCaption Me, sCaptions."});
}

} // namespace velkor6::dispatch
