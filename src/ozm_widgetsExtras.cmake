# What an application needs beside it.

# ozm_deploy_script_library(<target> [DESTINATION <dir>])
#
# Puts the script library of the report templates into templateEditorJSLib/ beside the executable <target>,
# where it is looked for; with DESTINATION, also installs it below that directory. With the static library, whose
# plug-ins are looked for beside the executable as well, they go there, too.
function(ozm_deploy_script_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "")
    get_property(library GLOBAL PROPERTY OZM_SCRIPT_LIBRARY)
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory "$<TARGET_FILE_DIR:${target}>/templateEditorJSLib"
        COMMAND ${CMAKE_COMMAND} -E copy_if_different "${library}"
            "$<TARGET_FILE_DIR:${target}>/templateEditorJSLib/TemplateEditorJSUtils.js"
        VERBATIM)
    if(arg_DESTINATION)
        install(FILES "${library}" DESTINATION "${arg_DESTINATION}/templateEditorJSLib")
    endif()
    # The plug-ins, and the programs that the library starts.
    get_property(beside GLOBAL PROPERTY OZM_STATIC_LIBRARY_PLUGINS)
    foreach(folder IN LISTS beside)
        cmake_path(GET folder FILENAME name)
        add_custom_command(TARGET ${target} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -E copy_directory "${folder}" "$<TARGET_FILE_DIR:${target}>/ozm_widgets/${name}"
            VERBATIM)
        if(arg_DESTINATION)
            install(DIRECTORY "${folder}" DESTINATION "${arg_DESTINATION}/ozm_widgets" USE_SOURCE_PERMISSIONS)
        endif()
    endforeach()
endfunction()

# The tree of the sources has said where its own is; in the package it is beside what else is shared.
get_property(known GLOBAL PROPERTY OZM_SCRIPT_LIBRARY SET)
if(NOT known)
    set_property(GLOBAL PROPERTY OZM_SCRIPT_LIBRARY
        "${ozm_widgets_PREFIX}/share/ozm_widgets/templateEditorJSLib/TemplateEditorJSUtils.js")
    get_target_property(type ozm::ozm_widgets TYPE)
    if(type STREQUAL "STATIC_LIBRARY")
        set_property(GLOBAL PROPERTY OZM_STATIC_LIBRARY_PLUGINS "${ozm_widgets_PREFIX}/bin/ozm_widgets/plugins"
            "${ozm_widgets_PREFIX}/bin/ozm_widgets/libexec")
    endif()
endif()
