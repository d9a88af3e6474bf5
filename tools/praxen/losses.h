// Which losses of a document a command tells.
#ifndef PRAXEN_TOOLS_PRAXEN_LOSSES_H_
#define PRAXEN_TOOLS_PRAXEN_LOSSES_H_

#include "praxen/core/losses.h"

namespace praxen::detail {

/// Whether the loss is that of an attribute that only reading fills: information that the document
/// repeats of another, and that the objects hold.
bool IsInformation(const Loss& loss);

/// The losses of what the document itself says: all but information.
Losses LossesOfContent(Losses losses);

/// The losses of which the objects know nothing; those that only writing makes are left out.
Losses LossesInObjects(Losses losses);

}  // namespace praxen::detail

#endif  // PRAXEN_TOOLS_PRAXEN_LOSSES_H_
