if(OZM_BUILD_AUDIT)
    ozm_add_benchmark(bench_audit SOURCES bench_audit.cpp AuditedEdit.h LIBRARIES ozm::ozm_audit SQLite::SQLite3)
endif()
