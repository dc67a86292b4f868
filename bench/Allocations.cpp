// The operators new and delete of the benchmarks, which count. In a file of their own: where they are expanded into
// their callers the compiler sees memory of malloc given back to delete.
#include "bench/Allocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<long> allocations;

} // namespace

namespace tarnvik {

long Allocations() {
    return allocations;
}

} // namespace tarnvik

void* operator new(std::size_t size) {
    ++allocations;
    if (void* const memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc{};
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}
