# Finds an installed OpenSG 1.x and makes the targets OpenSG1::Base and OpenSG1::System.

find_path(OpenSG_INCLUDE_DIR OpenSG/OSGConfig.h)
find_library(OpenSG_BASE_LIBRARY OSGBase)
find_library(OpenSG_SYSTEM_LIBRARY OSGSystem)
if(NOT OpenSG_INCLUDE_DIR OR NOT OpenSG_BASE_LIBRARY OR NOT OpenSG_SYSTEM_LIBRARY)
    message(FATAL_ERROR "ORLO_OPENSG is SYSTEM, but no OpenSG 1.x was found: include/OpenSG, libOSGBase and libOSGSystem "
                        "are needed. Set CMAKE_PREFIX_PATH to where it is installed, or ORLO_OPENSG to STANDIN.")
endif()

# 2.x has field container pointers of another kind; only 1.x still has this header.
if(NOT EXISTS ${OpenSG_INCLUDE_DIR}/OpenSG/OSGNodePtr.h)
    message(FATAL_ERROR "The OpenSG in ${OpenSG_INCLUDE_DIR} is not a 1.x: OSGNodePtr.h is missing. "
                        "OpenSG 2.x has other interfaces and cannot be used.")
endif()

# The library calls OpenGL and its utilities and leaves them to its user to link.
find_package(OpenGL REQUIRED COMPONENTS OpenGL)
if(NOT TARGET OpenGL::GLU)
    message(FATAL_ERROR "OpenSG 1.x needs the OpenGL utility library to be linked beside it, and none was found. "
                        "On Debian it is in libglu1-mesa-dev.")
endif()

foreach(part Base System)
    if(NOT TARGET OpenSG1::${part})
        string(TOUPPER ${part} upper)
        add_library(OpenSG1::${part} SHARED IMPORTED)
        # Its headers name each other without the folder that they lie in. A library without a name of its own would be
        # needed by the path where it lay when this was built.
        set_target_properties(OpenSG1::${part} PROPERTIES
            IMPORTED_NO_SONAME TRUE
            IMPORTED_LOCATION ${OpenSG_${upper}_LIBRARY}
            INTERFACE_INCLUDE_DIRECTORIES "${OpenSG_INCLUDE_DIR};${OpenSG_INCLUDE_DIR}/OpenSG"
            INTERFACE_LINK_LIBRARIES "OpenGL::GLU;OpenGL::GL")
    endif()
endforeach()
