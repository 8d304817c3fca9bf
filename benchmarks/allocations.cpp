// Counts allocations for every benchmark program that is linked with this: a result's allocs_per_iter. The
// counts include what a benchmark does while its timing is paused.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstddef>

#if defined(__GLIBC__)

namespace {

std::atomic<int64_t> s_allocations{0};

class Counter : public benchmark::MemoryManager
{
public:
    Counter() { benchmark::RegisterMemoryManager(this); }

    void Start() override { m_before = s_allocations; }
    void Stop(Result &result) override { result.num_allocs = s_allocations - m_before; }
    void Stop(Result *result) override { Stop(*result); }

private:
    int64_t m_before = 0;
};

const Counter s_counter;

} // namespace

// Before the C library's own, and so for all libraries of the program: Qt's containers call malloc() directly.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size)
{
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

void *realloc(void *memory, std::size_t size)
{
    s_allocations.fetch_add(1, std::memory_order_relaxed);
    return __libc_realloc(memory, size);
}

} // extern "C"

#endif
