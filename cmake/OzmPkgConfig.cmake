# ozm_install_pkg_config(<name> <target>...): <name>.pc beside the package of CMake, for those who build with
# something else. <target>... are the public ones: Qt6::Core becomes Qt6Core, ozm::ozm_widgets is ozm_widgets.
# Shared libraries only: the objects that a static one needs beside it are known to CMake alone.
function(ozm_install_pkg_config name)
    if(NOT UNIX OR NOT BUILD_SHARED_LIBS)
        return()
    endif()
    set(OZM_PACKAGE ${name})
    set(OZM_REQUIRES "")
    foreach(target IN LISTS ARGN)
        string(REGEX REPLACE "^ozm::" "" module "${target}")
        string(REPLACE "::" "" module "${module}")
        list(APPEND OZM_REQUIRES ${module})
    endforeach()
    list(JOIN OZM_REQUIRES ", " OZM_REQUIRES)
    set(folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    # Counted from where the file lies, so that an install can be moved.
    file(RELATIVE_PATH OZM_TO_PREFIX "/prefix/${folder}" "/prefix")
    string(REGEX REPLACE "/$" "" OZM_TO_PREFIX "${OZM_TO_PREFIX}")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/Package.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${name}.pc" DESTINATION "${folder}")
endfunction()
