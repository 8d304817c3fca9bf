# What is embedded into the library: style sheet, icons, translations.

set(resources_dir "${PROJECT_SOURCE_DIR}/resources")
file(GLOB icons CONFIGURE_DEPENDS "${resources_dir}/icons/*.svg")
foreach(icon IN LISTS icons)
    cmake_path(GET icon FILENAME name)
    set_source_files_properties("${icon}" PROPERTIES QT_RESOURCE_ALIAS "icons/${name}")
endforeach()
set_source_files_properties("${resources_dir}/stylesheet.qss" PROPERTIES QT_RESOURCE_ALIAS "stylesheet")
qt_add_resources(ozm_widgets ozm_widgets_style PREFIX "/style"
    FILES "${resources_dir}/stylesheet.qss" ${icons})

# Compiled from translations/*.ts, which `make translations` brings up to date.
find_program(OZM_LRELEASE NAMES lrelease-qt6 lrelease6 lrelease
    HINTS "${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}" "${QT6_INSTALL_PREFIX}/lib/qt6/bin" REQUIRED)
file(GLOB translations CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/ozm_widgets_*.ts")
set(compiled_translations "")
foreach(translation IN LISTS translations)
    cmake_path(GET translation STEM name)
    set(compiled "${CMAKE_CURRENT_BINARY_DIR}/${name}.qm")
    add_custom_command(OUTPUT "${compiled}"
        COMMAND "${OZM_LRELEASE}" -silent "${translation}" -qm "${compiled}"
        DEPENDS "${translation}" VERBATIM)
    set_source_files_properties("${compiled}" PROPERTIES QT_RESOURCE_ALIAS "${name}.qm" GENERATED ON)
    list(APPEND compiled_translations "${compiled}")
endforeach()
qt_add_resources(ozm_widgets ozm_widgets_translations PREFIX "/i18n" FILES ${compiled_translations})
