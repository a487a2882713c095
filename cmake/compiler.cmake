# Every target of the project links tavrel_options: warnings are errors, and the sanitizers
# have to be the same everywhere.
add_library(tavrel_options INTERFACE)
target_compile_features(tavrel_options INTERFACE cxx_std_20)

if(MSVC)
  target_compile_options(tavrel_options INTERFACE /W4 /utf-8)
else()
  target_compile_options(tavrel_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
  # GCC 12 sees overlapping copies in its own std::string when it optimises; there are none.
  target_compile_options(tavrel_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endif()

# The program reads files that others wrote; what the system can do against overflows is worth its little time.
if(UNIX)
  target_compile_options(tavrel_options INTERFACE
    "$<$<CONFIG:Release>:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
  target_link_options(tavrel_options INTERFACE "$<$<AND:$<CONFIG:Release>,$<NOT:$<PLATFORM_ID:Darwin>>>:LINKER:-z,relro,-z,now>")
endif()

if(TAVREL_SANITIZE)
  target_compile_options(tavrel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavrel_options INTERFACE -fsanitize=address,undefined)
endif()

if(TAVREL_FUZZ)
  target_compile_options(tavrel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
