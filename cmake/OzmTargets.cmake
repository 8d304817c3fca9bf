# How every target of this project is built: one place for language level, warnings, strict Qt defines,
# sanitizers, and for what makes a directory of sources a library that others can install and find.

set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

include(CMakePackageConfigHelpers)
include(GenerateExportHeader)
include(OzmPkgConfig)

# ozm_precompile(<name> <header>...): headers that any number of targets then read compiled, by
# ozm_use_precompiled(<target> <name>). Qt's take most of the time of a small source, and compiling them
# once cuts a whole build to less than half. The targets must be built with the same Qt modules.
function(ozm_precompile name)
    if(OZM_PRECOMPILE_HEADERS)
        list(TRANSFORM ARGN REPLACE "(.+)" "<\\1>")
        file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp" CONTENT "// Carries the headers.\n")
        add_library(${name} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp")
        ozm_configure_target(${name})
        target_precompile_headers(${name} PRIVATE ${ARGN})
    endif()
endfunction()

function(ozm_use_precompiled target name)
    if(TARGET ${name})
        target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
endfunction()

# ozm_configure_target(<target>): the compile and link rules that hold everywhere.
function(ozm_configure_target target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_definitions(${target} PRIVATE
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_CAST_FROM_BYTEARRAY
        QT_NO_URL_CAST_FROM_STRING
        QT_NO_KEYWORDS
        QT_NO_FOREACH
        QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
        QT_STRICT_ITERATORS
        QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(MSVC)
        # /d1trimfile makes __FILE__ relative, so that recorded places do not name the build machine.
        target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8
            "/d1trimfile:${PROJECT_SOURCE_DIR}\\" $<$<BOOL:${OZM_WARNINGS_AS_ERRORS}>:/WX>)
    else()
        target_compile_options(${target} PRIVATE
            -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align
            -Wconversion -Wno-sign-conversion -Wold-style-cast -Wimplicit-fallthrough -Wformat=2
            "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
            # A call of an older form is worth a warning, and never a reason to refuse the build.
            $<$<BOOL:${OZM_WARNINGS_AS_ERRORS}>:-Werror> -Wno-error=deprecated-declarations)
        # GCC then puts calls of a source's own exported functions in place, as other compilers do. Not where
        # one steps through them.
        target_compile_options(${target} PRIVATE
            $<$<AND:$<CXX_COMPILER_ID:GNU>,$<NOT:$<CONFIG:Debug>>>:-fno-semantic-interposition>)
        if(OZM_SANITIZE)
            target_compile_options(${target} PRIVATE
                -fsanitize=${OZM_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
            target_link_options(${target} PRIVATE -fsanitize=${OZM_SANITIZE})
        endif()
    endif()
endfunction()

# ozm_add_library(<name> HEADERS_BASE <dir> HEADERS <h>... SOURCES <cpp>...
#                 [PUBLIC <target>...] [PRIVATE <target>...] [PACKAGES "<find_dependency arguments>"...]
#                 [STATIC_PACKAGES "<find_dependency arguments>"...])
#
# A library ozm::<name>, shared unless BUILD_SHARED_LIBS is off, when its users link STATIC_PACKAGES as well, with a generated <name>/<name>_export.h, an installed package of that name,
# and a header set whose every header is checked to compile by itself (target all_verify_interface_header_sets).
function(ozm_add_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "HEADERS_BASE"
        "HEADERS;SOURCES;PUBLIC;PRIVATE;PACKAGES;STATIC_PACKAGES")

    # The headers are named here for moc as well, which otherwise looks beside the sources only.
    add_library(${name} ${arg_SOURCES} ${arg_HEADERS})
    add_library(ozm::${name} ALIAS ${name})
    ozm_configure_target(${name})
    target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE ${arg_PRIVATE})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        INSTALL_RPATH "$<$<NOT:$<PLATFORM_ID:Windows,Darwin>>:$ORIGIN>$<$<PLATFORM_ID:Darwin>:@loader_path>")

    if(NOT BUILD_SHARED_LIBS)
        string(TOUPPER ${name} upper)
        target_compile_definitions(${name} PUBLIC ${upper}_STATIC_DEFINE)
        set_target_properties(${name} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        list(APPEND arg_PACKAGES ${arg_STATIC_PACKAGES})
    endif()

    set(generated "${CMAKE_CURRENT_BINARY_DIR}/generated")
    generate_export_header(${name} EXPORT_FILE_NAME "${generated}/${name}/${name}_export.h")
    target_sources(${name} PUBLIC FILE_SET HEADERS
        BASE_DIRS "${arg_HEADERS_BASE}" "${generated}"
        FILES ${arg_HEADERS} "${generated}/${name}/${name}_export.h")

    ozm_install_library(${name} "${arg_PACKAGES}")
    ozm_install_pkg_config(${name} ${arg_PUBLIC})
endfunction()

function(ozm_install_library name packages)
    install(TARGETS ${name} EXPORT ${name}Targets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

    set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/${name})
    install(EXPORT ${name}Targets NAMESPACE ozm:: DESTINATION ${package_dir})

    set(OZM_FIND_DEPENDENCIES "")
    foreach(package IN LISTS packages)
        string(APPEND OZM_FIND_DEPENDENCIES "find_dependency(${package})\n")
    endforeach()
    set(OZM_PACKAGE ${name})
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/PackageConfig.cmake.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake" INSTALL_DESTINATION ${package_dir})
    write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake"
        COMPATIBILITY SameMinorVersion)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}Config.cmake"
        "${CMAKE_CURRENT_BINARY_DIR}/${name}ConfigVersion.cmake" DESTINATION ${package_dir})
endfunction()

# ozm_add_resources(<target> <name> <qt_add_resources arguments>...): a static library keeps its resources in
# objects beside it, which are installed with it.
function(ozm_add_resources target name)
    qt_add_resources(${target} ${name} ${ARGN} OUTPUT_TARGETS objects)
    # A program's own static library is installed with nothing.
    if(objects AND NOT BUILD_SHARED_LIBS)
        install(TARGETS ${objects} EXPORT ${target}Targets
            OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR}/objects)
    endif()
endfunction()

# Beside what asks for it: the program that holds a static library, or the library itself. In the build tree as after
# an install.
function(ozm_folders_beside_library build_folder install_folder)
    if(WIN32 OR NOT BUILD_SHARED_LIBS)
        set(${build_folder} "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/ozm_widgets" PARENT_SCOPE)
        set(${install_folder} ${CMAKE_INSTALL_BINDIR}/ozm_widgets PARENT_SCOPE)
    else()
        set(${build_folder} "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}/ozm_widgets" PARENT_SCOPE)
        set(${install_folder} ${CMAKE_INSTALL_LIBDIR}/ozm_widgets PARENT_SCOPE)
    endif()
endfunction()

# ozm_add_plugin(<name> SOURCES <file>... LIBRARIES <target>...): a module that ozm_widgets finds at run time,
# below its own folder in the build tree as after an install.
function(ozm_add_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    ozm_folders_beside_library(build_folder install_folder)
    add_library(${name} MODULE ${arg_SOURCES})
    ozm_configure_target(${name})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        PREFIX ""
        LIBRARY_OUTPUT_DIRECTORY "${build_folder}/plugins"
        INSTALL_RPATH "$<$<NOT:$<PLATFORM_ID:Windows,Darwin>>:$ORIGIN/../..>$<$<PLATFORM_ID:Darwin>:@loader_path/../..>")
    install(TARGETS ${name} LIBRARY DESTINATION ${install_folder}/plugins)
endfunction()

# ozm_add_helper(<name> SOURCES <file>... LIBRARIES <target>...): a program that ozm_widgets starts, and finds below
# its own folder as it does its plug-ins. It links Qt only, which may lie beside the library.
function(ozm_add_helper name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
    ozm_folders_beside_library(build_folder install_folder)
    add_executable(${name} ${arg_SOURCES})
    ozm_configure_target(${name})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/src")
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON
        MACOSX_BUNDLE OFF
        RUNTIME_OUTPUT_DIRECTORY "${build_folder}/libexec"
        INSTALL_RPATH "$<$<NOT:$<PLATFORM_ID:Windows,Darwin>>:$ORIGIN/../..>$<$<PLATFORM_ID:Darwin>:@loader_path/../..>")
    install(TARGETS ${name} RUNTIME DESTINATION ${install_folder}/libexec)
endfunction()
