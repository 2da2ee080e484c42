# Warnings for every target of ours; sanitizers for the test build.
add_compile_options(-Wall -Wextra -Wpedantic)

if(TARNIC_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()

# The fuzz tree: every library compiled with libFuzzer's coverage hooks and the sanitizers; only
# the fuzz executables link libFuzzer itself (tests/fuzz).
if(TARNIC_BUILD_FUZZ)
    if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        message(FATAL_ERROR "TARNIC_BUILD_FUZZ needs clang: configure a tree of its own with "
                            "CC=clang CXX=clang++ (scripts/fuzz.sh does)")
    endif()
    add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer
                        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()
