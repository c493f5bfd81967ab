#pragma once

// Objects that each thread keeps for itself between documents.

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// The calling thread's own T, made on first use. Bind the result once: each mention of a
/// thread-local variable looks its address up again, through a call into the dynamic loader.
template <typename T>
[[gnu::noinline]] T& ThreadOwn()
{
    thread_local T object;
    return object;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
