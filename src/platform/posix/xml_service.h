// The XML document service over pugixml.
#pragma once

#include "velkor6/platform/xml.h"

#include <memory>

namespace velkor6::posix {

std::unique_ptr<XmlService> createXmlService();

} // namespace velkor6::posix
