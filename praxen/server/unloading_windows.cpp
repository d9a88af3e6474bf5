// What is left to do as the DLL is unloaded.
#include <windows.h>

#include <new>  // Tells which C++ library it is.

#ifdef __GLIBCXX__
namespace __gnu_cxx {
void __freeres();
}
#endif

// The DLL has a C++ library of its own, whose reserve of memory for exceptions would stay. When the
// process ends, the system takes it.
extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD reason, LPVOID processEnds) {
#ifdef __GLIBCXX__
  if (reason == DLL_PROCESS_DETACH && processEnds == nullptr) __gnu_cxx::__freeres();
#endif
  return TRUE;
}
