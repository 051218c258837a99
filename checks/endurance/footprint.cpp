#include "endurance/footprint.h"

#include "host/fake_host.h"
#include "leaks/system_handles.h"
#include "windows/component.h"

#include <windows.h>

#include <array>
#include <vector>

namespace brx::checks {

namespace {

long references_to(const FakeHost& host) {
    return host.servers.use_count() + host.enumerator.use_count() + host.connection.use_count() +
           host.browser.use_count() + host.group.use_count() + host.configuration.use_count() +
           host.configuration->tests.use_count() + host.configuration->descriptors.use_count() +
           host.groups.use_count() + host.application.use_count() + host.database.use_count() +
           host.picker.use_count() + host.help_service.use_count();
}

template <class Count> void tell(std::string& all, const char* what, Count mark, Count end, Count spared) {
    if (end > mark + spared)
        all += std::string(what) + " grew from " + std::to_string(mark) + " to " + std::to_string(end) + ". ";
}

} // namespace

std::size_t blocks_in_use() {
    std::array<HANDLE, 64> heaps{};
    const DWORD count = GetProcessHeaps(static_cast<DWORD>(heaps.size()), heaps.data());
    std::size_t blocks = 0;
    for (DWORD i = 0; i < count && i < heaps.size(); ++i) {
        PROCESS_HEAP_ENTRY entry{};
        HeapLock(heaps[i]);
        while (HeapWalk(heaps[i], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) ++blocks;
        HeapUnlock(heaps[i]);
    }
    return blocks;
}

Footprint footprint_of(bench::LastingHost& host) {
    FakeHost& objects = host.objects();
    objects.calls.forget();
    const SystemHandles handles = system_handles();
    return {.user = handles.user,
            .gdi = handles.gdi,
            .kernel = handles.kernel,
            .blocks = blocks_in_use(),
            .bytes = bench::private_bytes(),
            .references = references_to(objects),
            .unloadable = host.component().can_be_unloaded()};
}

std::string grown(const Footprint& mark, const Footprint& end, std::size_t blocks_of_the_system) {
    std::string all;
    tell(all, "USER objects", mark.user, end.user, slack::handles);
    tell(all, "GDI objects", mark.gdi, end.gdi, slack::handles);
    tell(all, "Kernel handles", mark.kernel, end.kernel, slack::handles);
    tell(all, "Blocks of memory", mark.blocks, end.blocks, slack::blocks + blocks_of_the_system);
    tell(all, "Private bytes", mark.bytes, end.bytes,
         slack::bytes + blocks_of_the_system * slack::bytes_for_a_block);
    tell(all, "References to the host's objects", mark.references, end.references, 0L);
    if (mark.unloadable && !end.unloadable) all += "The DLL came to be in use for good. ";
    return all;
}

} // namespace brx::checks
