// What the walk that reads tells a recorder of the elements that it has read.
#ifndef PRAXEN_DESCRIBE_LOSS_RECORDING_H_
#define PRAXEN_DESCRIBE_LOSS_RECORDING_H_

#include "praxen/describe/layout.h"
#include "praxen/describe/object.h"
#include "praxen/xml/loss_recorder.h"

namespace praxen::describe {

// Each is called only while the node has a recorder.

/// Of an element that an object of that layout was read from.
void RecordElement(Object& object, const Layout& layout, const XmlNode& node);

/// Of an element that `child` lays out, and the text that was read from it.
void RecordText(const Text& value, const Child& child, const XmlNode& node);

/// Of an attribute that was read as a boolean.
void RecordBoolean(bool value, const XmlNode& node, const XmlAttribute& attribute);

}  // namespace praxen::describe

#endif  // PRAXEN_DESCRIBE_LOSS_RECORDING_H_
