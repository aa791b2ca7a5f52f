# Builds the SDK, the plug-in and the tool against an OpenSG that is installed, and has the scripts agree there too.
#   cmake -DSOURCE=<the repository> -DWORK=<a scratch folder> -DCOMPILER=<the C++ compiler> -DPYTHON=<python3>
#         -DLAUNCHER=<the compiler's launcher> -P build_against_opensg.cmake

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGN}\n${output}")
    endif()
endfunction()

set(here ${SOURCE}/Tests/opensg)
set(installed ${WORK}/opensg)
file(REMOVE_RECURSE ${WORK})
file(COPY ${here}/include DESTINATION ${installed})
file(MAKE_DIRECTORY ${installed}/lib)
foreach(part Base System)
    run(${COMPILER} -shared -fPIC -I${installed}/include -I${installed}/include/OpenSG ${here}/${part}.cpp
        -o ${installed}/lib/libOSG${part}.so)
endforeach()

set(configure ${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/build -G Ninja -DCMAKE_BUILD_TYPE=None
    "-DCMAKE_CXX_FLAGS=-O0 -Werror" -DCMAKE_CXX_COMPILER=${COMPILER} -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -DBUILD_TESTING=OFF -DORLO_OPENSG=SYSTEM -DCMAKE_PREFIX_PATH=${installed})

# A 2.x has no such header.
file(RENAME ${installed}/include/OpenSG/OSGNodePtr.h ${installed}/OSGNodePtr.h)
execute_process(COMMAND ${configure} RESULT_VARIABLE result OUTPUT_QUIET ERROR_VARIABLE output)
if(result EQUAL 0 OR NOT output MATCHES "is not a 1.x")
    message(FATAL_ERROR "an OpenSG that is not a 1.x was taken:\n${output}")
endif()
file(RENAME ${installed}/OSGNodePtr.h ${installed}/include/OpenSG/OSGNodePtr.h)

run(${configure})
run(${CMAKE_COMMAND} --build ${WORK}/build --target orlo-prefs KernelPreferences)
run(${PYTHON} ${SOURCE}/Tests/lint/check_needed.py ${WORK}/build/bin/libOrloSdk.so
    ${WORK}/build/bin/libKernelPreferences.so SYSTEM)

# What is refused stands in the host's log.
run(${COMPILER} -std=c++17 -I${installed}/include -I${installed}/include/OpenSG ${here}/Loaders.cpp
    -o ${WORK}/loaders -Wl,--no-as-needed -L${WORK}/build/bin -lOrloSdk -L${installed}/lib -lOSGSystem -lOSGBase -lGLU -lGL
    -Wl,-rpath,${WORK}/build/bin:${installed}/lib)
execute_process(COMMAND ${WORK}/loaders RESULT_VARIABLE result ERROR_VARIABLE log)
if(NOT result EQUAL 0 OR NOT log STREQUAL "info: OpenSG has no loader for vrml; options for it are not kept.\n")
    message(FATAL_ERROR "loaders of an installed OpenSG end with ${result} and say\n${log}")
endif()

# The journal tells of the options for loaders as ever, those that the library refuses among them.
file(GLOB folders ${SOURCE}/Tests/scripts/*)
foreach(folder IN LISTS folders)
    if(IS_DIRECTORY ${folder})
        run(${PYTHON} ${SOURCE}/Tests/scripts/run_scripts.py --tool ${WORK}/build/bin/orlo-prefs ${folder})
    endif()
endforeach()
