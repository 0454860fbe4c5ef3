#include "velkor6/vb_error.h"

#include "core/text.h"

namespace velkor6 {

VbError::VbError(std::int32_t number, std::u16string description, std::u16string source)
    : std::runtime_error(toUtf8(description)), number_(number),
      description_(std::move(description)), source_(std::move(source)) {}

VbError::VbError(std::int32_t number) : VbError(number, describe(number)) {}

std::u16string VbError::describe(std::int32_t number) {
    switch (number) {
    case vberr::invalidCall:
        return u"Invalid procedure call or argument";
    case vberr::overflow:
        return u"Overflow";
    case vberr::outOfMemory:
        return u"Out of memory";
    case vberr::subscriptOutOfRange:
        return u"Subscript out of range";
    case vberr::divisionByZero:
        return u"Division by zero";
    case vberr::typeMismatch:
        return u"Type mismatch";
    case vberr::outOfStringSpace:
        return u"Out of string space";
    case vberr::fileNotFound:
        return u"File not found";
    case vberr::objectNotSet:
        return u"Object variable or With block variable not set";
    case vberr::invalidPattern:
        return u"Invalid pattern string";
    case vberr::invalidUseOfNull:
        return u"Invalid use of Null";
    case vberr::objectRequired:
        return u"Object required";
    case vberr::noSuchMember:
        return u"Object doesn't support this property or method";
    case vberr::namedArgumentNotFound:
        return u"Named argument not found";
    case vberr::argumentNotOptional:
        return u"Argument not optional";
    case vberr::wrongArgumentCount:
        return u"Wrong number of arguments or invalid property assignment";
    case vberr::duplicateKey:
        return u"This key is already associated with an element of this collection";
    default:
        return u"Application-defined or object-defined error";
    }
}

} // namespace velkor6
