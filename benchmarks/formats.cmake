# Recognition of vendor data: how long it takes, and how many system calls (syscalls.sh).

add_executable(bench_formats bench_formats.cpp formats_layouts.cpp formats_layouts.h)
ozm_configure_target(bench_formats)
target_link_libraries(bench_formats PRIVATE
    ozm::ozm_core_ms ozm::ozm_common_ms Qt6::Core benchmark::benchmark_main)

add_executable(formats_probe
    formats_probe.cpp formats_layouts.cpp formats_layouts.h "${PROJECT_SOURCE_DIR}/tests/core_ms/LiteralRules.cpp")
ozm_configure_target(formats_probe)
target_include_directories(formats_probe PRIVATE "${PROJECT_SOURCE_DIR}/tests")
target_link_libraries(formats_probe PRIVATE ozm::ozm_core_ms Qt6::Core)
