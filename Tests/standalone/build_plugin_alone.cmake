# Installs the SDK, adds one more format to a copy of the plug-in, as the documentation says, builds it alone against the
# SDK, as an integrator would, loads the result and lets the tests of modules judge it. Then the guide's smallest plug-in.
#   cmake -DBUILD=<the build> -DSOURCE=<the repository> -DWORK=<a scratch folder> -DCOMPILER=<the C++ compiler>
#         -DTESTS=<plugins-tests> -DPYTHON=<python3> -P build_plugin_alone.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

file(REMOVE_RECURSE ${WORK})
run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/sdk)
set(format ${PYTHON} ${SOURCE}/Tests/standalone/add_format.py ${SOURCE} ${WORK}/copy)
run(${format} apply)
run(${CMAKE_COMMAND} -S ${WORK}/copy/Plugins/KernelPreferences -B ${WORK}/plugin -G Ninja
    -DCMAKE_PREFIX_PATH=${WORK}/sdk -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_FLAGS=-Werror -DORLO_SANITIZE=${SANITIZE}
    -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run(${CMAKE_COMMAND} --build ${WORK}/plugin)

# The installed tool loads both: the one installed beside it and the one just built.
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db list --json)
set(plugin ${WORK}/plugin/bin/libKernelPreferences.so)
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db --plugin ${plugin} list --json)
run(${format} check --tests ${TESTS} --tool ${WORK}/sdk/bin/orlo-prefs --plugin ${plugin})

# The smallest plug-in, as the SDK's guide has it.
file(READ ${SOURCE}/docs/sdk.md guide)
string(REGEX MATCH "```cmake\n([^`]*)```" found "${guide}")
file(WRITE ${WORK}/smallest/CMakeLists.txt "${CMAKE_MATCH_1}")
string(REGEX MATCH "```cpp\n([^`]*)```" found "${guide}")
file(WRITE ${WORK}/smallest/Sound.cpp "${CMAKE_MATCH_1}")
run(${CMAKE_COMMAND} -S ${WORK}/smallest -B ${WORK}/smallest/build -G Ninja -DCMAKE_PREFIX_PATH=${WORK}/sdk
    -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run(${CMAKE_COMMAND} --build ${WORK}/smallest/build)
run(${WORK}/sdk/bin/orlo-prefs --store ${WORK}/store.db --plugin ${WORK}/smallest/build/libSound.so get "Sound enable")
