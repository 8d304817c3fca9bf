# What is embedded into the library: style sheet, icons, translations.

set(resources_dir "${PROJECT_SOURCE_DIR}/resources")
file(GLOB icons CONFIGURE_DEPENDS "${resources_dir}/icons/*.svg")
foreach(icon IN LISTS icons)
    cmake_path(GET icon FILENAME name)
    set_source_files_properties("${icon}" PROPERTIES QT_RESOURCE_ALIAS "icons/${name}")
endforeach()
set_source_files_properties("${resources_dir}/stylesheet.qss" PROPERTIES QT_RESOURCE_ALIAS "stylesheet")
ozm_add_resources(ozm_widgets ozm_widgets_style PREFIX "/style"
    FILES "${resources_dir}/stylesheet.qss" ${icons})

include(OzmTranslations)
file(GLOB translations CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/translations/ozm_widgets_*.ts")
ozm_add_translations(ozm_widgets ozm_widgets_translations ${translations})
