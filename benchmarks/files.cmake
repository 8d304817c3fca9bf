# File dialogs: how long they take to open, and how many system calls (dialog_syscalls.sh); tables as CSV.

ozm_add_benchmark(bench_files SOURCES bench_files.cpp files_opening.h)

add_executable(files_probe files_probe.cpp files_opening.h)
ozm_configure_target(files_probe)
target_link_libraries(files_probe PRIVATE ozm::ozm_widgets)
