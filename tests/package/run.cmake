# Installs the build in BUILD into a folder of its own, moves it, so that nothing can depend on where
# it was, and builds and runs the client against it with COMPILER and FLAGS.
cmake_minimum_required(VERSION 3.25)
set(work ${BUILD}/package)
set(package ${work}/moved)
set(client ${work}/client)

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

file(REMOVE_RECURSE ${work})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${work}/installed)
file(RENAME ${work}/installed ${package})
run(${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${client} -G Ninja
    -DCMAKE_PREFIX_PATH=${package} -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=${FLAGS})
run(${CMAKE_COMMAND} --build ${client})
run(${client}/client)
