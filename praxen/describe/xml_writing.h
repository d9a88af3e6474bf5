// Writing of objects by their layouts.
#ifndef PRAXEN_DESCRIBE_XML_WRITING_H_
#define PRAXEN_DESCRIBE_XML_WRITING_H_

#include "praxen/core/enumerations.h"
#include "praxen/describe/layout.h"
#include "praxen/describe/object.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::describe {

/// Writes the element of an object whose class has that layout.
void WriteElement(Object& object, const Layout& layout, XMLStringWriter& writer);

/// The value of an attribute as it is written.
Text AttributeText(const Attribute& attribute, const void* value);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_XML_WRITING_H_
