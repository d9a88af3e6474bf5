// The writing of project constants whose names are in order, which needs no tree.
#ifndef PRAXEN_MODEL_APPLICATION_ORDERED_CONSTANTS_H_
#define PRAXEN_MODEL_APPLICATION_ORDERED_CONSTANTS_H_

#include "praxen/model/application/name_allowance.h"
#include "praxen/model/application/project_constant.h"
#include "praxen/xml/xml_string_writer.h"

namespace praxen::detail {

/// Whether each name is behind the one before it, segment by segment, no name is the group of
/// another, and no segment is empty. Each group's constants then stand together, and each name
/// once.
bool AreOrdered(const ProjectConstants& list);

/// Writes the elements of such a list, as the tree would. Raises what writing the tree raises.
void WriteOrdered(const ProjectConstants& list, XMLStringWriter& writer, NameAllowance& allowance);

}  // namespace praxen::detail

#endif  // PRAXEN_MODEL_APPLICATION_ORDERED_CONSTANTS_H_
