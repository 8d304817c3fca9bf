# The suite's other libraries. Sources name them only as ozm::<library>, so that a site which has the real
# ones configures with -DOZM_PLATFORM=installed and changes nothing else.

set(OZM_PLATFORM_LIBRARIES
    ozm_common_stable
    ozm_common_core_mini
    ozm_common_ms
    ozm_references
    ozm_qt_shared_libs_core
    ozm_common_core
    ozm_common_widgets)

if(OZM_PLATFORM STREQUAL "bundled")
    foreach(library IN LISTS OZM_PLATFORM_LIBRARIES)
        add_subdirectory(platform/${library})
    endforeach()
elseif(OZM_PLATFORM STREQUAL "installed")
    foreach(library IN LISTS OZM_PLATFORM_LIBRARIES)
        find_package(${library} CONFIG REQUIRED)
    endforeach()
else()
    message(FATAL_ERROR "OZM_PLATFORM is '${OZM_PLATFORM}', but must be 'bundled' or 'installed'.")
endif()
