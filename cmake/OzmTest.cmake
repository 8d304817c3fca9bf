# ozm_add_test(<name> SOURCES <cpp>... [LIBRARIES <target>...] [LABELS <label>...])
#
# A Qt Test program, run without a screen. What it may not do (warn unexpectedly, leave state behind) is
# settled in tests/support.
function(ozm_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES;LABELS")
    add_executable(${name} ${arg_SOURCES})
    ozm_configure_target(${name})
    ozm_use_precompiled(${name} ozm_precompiled_tests)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_link_libraries(${name} PRIVATE test_support ${arg_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS "${arg_LABELS}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;TZ=UTC;ASAN_OPTIONS=detect_leaks=1;UBSAN_OPTIONS=print_stacktrace=1")
endfunction()
