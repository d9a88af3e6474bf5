// Everything that a C++ client of the library needs.
#ifndef PRAXEN_PRAXEN_H_
#define PRAXEN_PRAXEN_H_

#include "praxen/core/error.h"
#include "praxen/factory/document_file.h"
#include "praxen/factory/object_factory.h"
#include "praxen/factory/read_document.h"
#include "praxen/factory/schema.h"
#include "praxen/model/maintenance.h"
#include "praxen/model/model.h"

#endif  // PRAXEN_PRAXEN_H_
