# What it costs an application to link the library: start time and memory.

foreach(kind IN ITEMS bare library)
    add_executable(startup_${kind} startup_program.cpp)
    ozm_configure_target(startup_${kind})
    target_link_libraries(startup_${kind} PRIVATE Qt6::Widgets)
endforeach()
target_compile_definitions(startup_library PRIVATE WITH_LIBRARY)
target_link_libraries(startup_library PRIVATE ozm::ozm_widgets)

add_executable(bench_startup bench_startup.cpp)
ozm_configure_target(bench_startup)
target_link_libraries(bench_startup PRIVATE Qt6::Core benchmark::benchmark)
add_dependencies(bench_startup startup_bare startup_library)
