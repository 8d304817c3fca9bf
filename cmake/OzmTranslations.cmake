# ozm_add_translations(<target> <resource> <ts>...)
#
# Compiles translations and embeds them as :/i18n/<name>_<language>.qm, where OzmCoreApplication finds them.
# The sources' side, `make translations`, is in the Makefile.
find_program(OZM_LRELEASE NAMES lrelease-qt6 lrelease6 lrelease
    HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" "${QT6_INSTALL_PREFIX}/lib/qt6/bin" REQUIRED)

function(ozm_add_translations target resource)
    set(all "")
    foreach(translation IN LISTS ARGN)
        cmake_path(GET translation STEM name)
        set(compiled "${CMAKE_CURRENT_BINARY_DIR}/${name}.qm")
        add_custom_command(OUTPUT "${compiled}"
            COMMAND "${OZM_LRELEASE}" -silent "${translation}" -qm "${compiled}"
            DEPENDS "${translation}" VERBATIM)
        set_source_files_properties("${compiled}" PROPERTIES QT_RESOURCE_ALIAS "${name}.qm" GENERATED ON)
        list(APPEND all "${compiled}")
    endforeach()
    ozm_add_resources(${target} ${resource} PREFIX "/i18n" FILES ${all})
endfunction()
