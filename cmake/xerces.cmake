# XercesC::XercesC: a static one without network and ICU, so that the library needs nothing but the C
# and C++ runtime. It is built once for all presets, and again when the program that builds it changes.
if(PRAXEN_SYSTEM_XERCES)
  find_package(XercesC REQUIRED)
  return()
endif()
if(WIN32)
  set(packages windows)
  set(packages_folder ${PROJECT_SOURCE_DIR}/build/windows-packages)
else()
  set(packages native)
  set(packages_folder ${PROJECT_SOURCE_DIR}/build/packages)
endif()
set(build_packages ${PROJECT_SOURCE_DIR}/tools/packages)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${build_packages})
execute_process(COMMAND ${build_packages} ${packages} COMMAND_ERROR_IS_FATAL ANY)
find_package(Threads REQUIRED)  # What the next one names without looking for it.
find_package(XercesC REQUIRED CONFIG PATHS ${packages_folder} NO_DEFAULT_PATH)
