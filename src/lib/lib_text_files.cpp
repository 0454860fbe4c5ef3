// The members that prepare texts for generated files.
#include "files/text_generation.h"
#include "velkor6/lib.h"

namespace velkor6 {

void lib::prfReplacePredefinedExpressions(std::u16string& sString, const Variant* vExpr) {
    files::replacePredefinedExpressions(sString, vExpr, *module().platform().clock, locale());
}

std::u16string lib::prfTextStream(std::u16string_view sFilename) {
    try {
        return files::textFromFileBytes(module().platform().fileSystem->readFile(sFilename));
    } catch (const std::exception&) {
        return {};
    }
}

std::u16string lib::prfPreFormatXML(std::u16string_view sXML) {
    return files::preFormatXml(sXML);
}

} // namespace velkor6
