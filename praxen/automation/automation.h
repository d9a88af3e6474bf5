// The automation (COM) types, interfaces and functions: the system's own on Windows; elsewhere the
// same names with the same binary layout, so that one source serves both.

#ifndef PRAXEN_AUTOMATION_AUTOMATION_H_
#define PRAXEN_AUTOMATION_AUTOMATION_H_

#include "praxen/core/language.h"

#ifdef _WIN32

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif

// windows.h comes first: the others build on it.
#include <windows.h>
// The automation headers, which the lean windows.h leaves out.
#include <oaidl.h>
#include <objbase.h>
#include <ocidl.h>
#include <oleauto.h>
#include <olectl.h>

#else

#include "praxen/automation/automation_posix.h"

#endif

#endif  // PRAXEN_AUTOMATION_AUTOMATION_H_
