# Decoding of templates, beside Debian's libctemplate-dev and libmstch-dev.
find_library(OZM_CTEMPLATE ctemplate REQUIRED)
find_library(OZM_MSTCH mstch REQUIRED)
find_package(Qt6 6.4 REQUIRED COMPONENTS Qml)

ozm_add_benchmark(bench_templates SOURCES bench_templates.cpp
    LIBRARIES Qt6::Qml "${OZM_CTEMPLATE}" "${OZM_MSTCH}")
