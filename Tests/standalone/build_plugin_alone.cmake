# Installs the SDK, builds the plug-in alone against it, as an integrator would, and loads the result. With TESTS the
# plug-in is a copy to which one more format was added, as the documentation says, and those tests judge it.
#   cmake -DBUILD=<the build> -DSOURCE=<the repository> -DWORK=<a scratch folder> -DCOMPILER=<the C++ compiler>
#         [-DTESTS=<plugins-tests> -DPYTHON=<python3>] -P build_plugin_alone.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/sdk)
set(sources ${SOURCE})
set(format ${PYTHON} ${SOURCE}/Tests/standalone/add_format.py ${SOURCE} ${WORK}/copy)
if(TESTS)
    set(sources ${WORK}/copy)
    run(${format} apply)
endif()
run(${CMAKE_COMMAND} -S ${sources}/Plugins/KernelPreferences -B ${WORK}/plugin -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/sdk -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=-Werror -DORLO_SANITIZE=${SANITIZE}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run(${CMAKE_COMMAND} --build ${WORK}/plugin)

# The installed tool loads both: the one installed beside it and the one just built.
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db list --json)
set(plugin ${WORK}/plugin/bin/libKernelPreferences.so)
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db --plugin ${plugin} list --json)

if(TESTS)
    run(${format} check --tests ${TESTS} --tool ${WORK}/sdk/bin/orlo-prefs --plugin ${plugin})
endif()
