# How everything here is compiled. The plug-in includes it too when it is built alone.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# One folder for programs and libraries, so that a program finds the plug-in beside it.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

add_compile_options(-Wall -Wextra)
add_compile_definitions(QT_DEPRECATED_WARNINGS)
if(ORLO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# Half of the time of compiling goes into the same headers again and again. The sanitizer build reads them anew for each
# source, so that a missing include is missed somewhere.
option(ORLO_PRECOMPILE "Read the toolkit's headers once for each library and program of many sources" ON)
function(orlo_precompile target)
    if(ORLO_PRECOMPILE AND NOT ORLO_SANITIZE)
        target_precompile_headers(${target} PRIVATE <functional> <map> <string> <vector> <boost/any.hpp> <QApplication>
            <QComboBox> <QFormLayout> <QGroupBox> <QLabel> <QLineEdit> <QVariant> ${ARGN})
    endif()
endfunction()

# The translations in the folder, in the form in which they are loaded: beside the programs, and where they are installed.
function(orlo_add_translations target destination)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/Translations/*.ts)
    set_source_files_properties(${sources} PROPERTIES OUTPUT_LOCATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/translations)
    qt5_add_translation(translations ${sources} OPTIONS -silent)
    add_custom_target(${target} ALL DEPENDS ${translations})
    install(FILES ${translations} DESTINATION ${destination})
endfunction()
