# Warnings for every target of ours; sanitizers for the test build.
add_compile_options(-Wall -Wextra -Wpedantic)

if(TARNIC_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=address,undefined)
endif()
