# What an application needs beside it.

# ozm_deploy_script_library(<target> [DESTINATION <dir>])
#
# Puts the script library of the report templates into templateEditorJSLib/ beside the executable <target>,
# where it is looked for; with DESTINATION, also installs it below that directory.
function(ozm_deploy_script_library target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DESTINATION" "")
    add_custom_command(TARGET ${target} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory "$<TARGET_FILE_DIR:${target}>/templateEditorJSLib"
        COMMAND ${CMAKE_COMMAND} -E copy_if_different "${OZM_SCRIPT_LIBRARY}"
            "$<TARGET_FILE_DIR:${target}>/templateEditorJSLib/TemplateEditorJSUtils.js"
        VERBATIM)
    if(arg_DESTINATION)
        install(FILES "${OZM_SCRIPT_LIBRARY}" DESTINATION "${arg_DESTINATION}/templateEditorJSLib")
    endif()
endfunction()

# In the source tree it is beside the sources; in the package, beside this file's package.
if(NOT DEFINED OZM_SCRIPT_LIBRARY)
    get_filename_component(OZM_SCRIPT_LIBRARY
        "${PACKAGE_PREFIX_DIR}/share/ozm_widgets/templateEditorJSLib/TemplateEditorJSUtils.js" ABSOLUTE)
endif()
