# What only the Windows DLL has: its name, its entry points and its type library.
enable_language(RC)
set_target_properties(PraxenHelper PROPERTIES PREFIX ""
                      RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR})
target_link_libraries(PraxenHelper PRIVATE ole32 oleaut32 uuid)

# Names the entry points; nothing else is exported.
file(GLOB definition CONFIGURE_DEPENDS server/*.def)
file(GLOB resources CONFIGURE_DEPENDS server/*.rc)
file(GLOB interfaces CONFIGURE_DEPENDS server/*.idl)
target_sources(PraxenHelper PRIVATE ${definition} ${resources})

# Each .idl gives a type library, which a resource file embeds, and a header for C++ clients.
if(interfaces)
  find_program(WIDL widl REQUIRED)
  set(SYSTEM_INTERFACES /usr/include/wine/wine/windows CACHE PATH "Folder of oaidl.idl")
  file(GLOB standard_library /usr/lib/*/wine/x86_64-windows/stdole2.tlb)
  cmake_path(GET standard_library PARENT_PATH standard_folder)
endif()
foreach(file IN LISTS interfaces)
  cmake_path(GET file STEM name)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${name})
  add_custom_command(
    OUTPUT ${output}.tlb ${output}.h
    COMMAND ${WIDL} -m64 -I ${SYSTEM_INTERFACES} -L ${standard_folder} -t -o ${output}.tlb ${file}
    COMMAND ${WIDL} -m64 -I ${SYSTEM_INTERFACES} -L ${standard_folder} -h -o ${output}.h ${file}
    DEPENDS ${file}
    COMMENT "Compiling ${name}.idl"
    VERBATIM)
  add_custom_target(${name}_types DEPENDS ${output}.tlb ${output}.h)
  add_dependencies(PraxenHelper ${name}_types)
  set_property(SOURCE ${resources} APPEND PROPERTY OBJECT_DEPENDS ${output}.tlb)
endforeach()
set_property(SOURCE ${resources} APPEND PROPERTY INCLUDE_DIRECTORIES ${CMAKE_CURRENT_BINARY_DIR})

# What users get beside the DLL: the schema, and the manifest for use without registration.
add_custom_command(
  TARGET PraxenHelper POST_BUILD
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${schema_if_present}
          ${CMAKE_CURRENT_SOURCE_DIR}/server/PraxenHelper.manifest ${PROJECT_BINARY_DIR}
  VERBATIM)
