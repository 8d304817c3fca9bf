# What an application needs beside it.

# ozm_deploy_script_library(<target> [DESTINATION <dir>])
#
# Puts the script library of the report templates into templateEditorJSLib/ beside the executable <target>,
# where it is looked for; with DESTINATION, also installs it below that directory.
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
endfunction()

# The tree of the sources has said where its own is; in the package it is beside what else is shared.
get_property(known GLOBAL PROPERTY OZM_SCRIPT_LIBRARY SET)
if(NOT known)
    set_property(GLOBAL PROPERTY OZM_SCRIPT_LIBRARY
        "${ozm_widgets_PREFIX}/share/ozm_widgets/templateEditorJSLib/TemplateEditorJSUtils.js")
endif()
