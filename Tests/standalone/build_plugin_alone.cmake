# Installs the SDK, builds the plug-in alone against it, as an integrator would, and loads the result.
#   cmake -DBUILD=<the build> -DSOURCE=<the repository> -DWORK=<a scratch folder> -DCOMPILER=<the C++ compiler>
#         -P build_plugin_alone.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/sdk)
run(${CMAKE_COMMAND} -S ${SOURCE}/Plugins/KernelPreferences -B ${WORK}/plugin -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/sdk -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=-Werror -DORLO_SANITIZE=${SANITIZE}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run(${CMAKE_COMMAND} --build ${WORK}/plugin)

# The installed tool loads both: the one installed beside it and the one just built.
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db list --json)
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db --plugin ${WORK}/plugin/bin/libKernelPreferences.so list --json)
