#pragma once

// The one C function the site module exports, shared by the module and the program that loads it.
// Plain C types only: the program finds it by name with QLibrary, after its window is painted, so
// that a start does not load Qt Network and what it brings along.

#include <cstddef>

namespace tarnic::site {

// Receives the body of an answer, in one or more pieces, in order.
using BodySink = void (*)(void* context, const char* data, std::size_t size);

// One plain HTTP GET of `url` (UTF-8, encoded) that blocks the calling (main) thread until the
// answer is complete or `timeoutMs` have passed; timers and sockets keep running meanwhile, user
// input waits. Returns 1 with the body of the answer, whatever its HTTP status, handed to `sink`;
// returns 0, and hands nothing over, when there is no complete answer in time or the body is over
// `maxBodyBytes`.
using GetFunction = int (*)(const char* url, long long timeoutMs, long long maxBodyBytes,
                            BodySink sink, void* context);

// The function's name in the module. A new signature gets a new name, so that an old module
// never meets a program that calls it differently.
inline constexpr char kGetFunctionName[] = "tarnic_site_get_v1";

// The module's file name, beside the program in the build tree and in its own folder under the
// library folder once installed.
inline constexpr char kModuleFileName[] = "tarnic-pro-site.so";

} // namespace tarnic::site
