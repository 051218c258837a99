#pragma once

namespace brx::checks {

class FakeHost;

/// What a host of an ordinary day has: servers, an address space, a configuration with tests and descriptors,
/// records to pick.
void fill(FakeHost& host);

} // namespace brx::checks
