# A room is one folder, one static library and one include path. It can include only what its list names, since no room passes on
# what it names itself; linking follows the names through all rooms.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# Programs and the plug-in find libraries outside the usual folders where the linker found them. They are built with their
# installed paths: a placeholder for other paths would be an empty entry, which means the current folder.
set(CMAKE_INSTALL_RPATH_USE_LINK_PATH ON)
set(CMAKE_BUILD_WITH_INSTALL_RPATH ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-O1 -g -fno-omit-frame-pointer -DNDEBUG")

# Options of all our targets: warnings, which the presets turn into errors; no contraction (results are the same on every machine);
# and no folder of the build machine in any text of the product.
add_library(nimbra_options INTERFACE)
target_compile_options(nimbra_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow
    -ffp-contract=off
    "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.." "-ffile-prefix-map=${CMAKE_BINARY_DIR}=../build")
# What Clang does without being asked: loops that clamp and convert become vectors, and so do loops of any length.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(nimbra_options INTERFACE -fno-trapping-math -fvect-cost-model=dynamic)
endif()
target_compile_definitions(nimbra_options INTERFACE QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)

# The distribution's hardening options, for a program and a plug-in that read untrusted files. Some exist only for some
# processors.
include(CheckCXXCompilerFlag)
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX)
add_compile_options(-Wformat -Werror=format-security -fstack-protector-strong)
add_link_options(-Wl,-z,relro -Wl,-z,now)
foreach(flag IN ITEMS stack-clash-protection cf-protection)
    string(MAKE_C_IDENTIFIER "NIMBRA_HAS_${flag}" known)
    check_cxx_compiler_flag(-f${flag} ${known})
    if(${known})
        add_compile_options(-f${flag})
    endif()
endforeach()
if(NIMBRA_SANITIZE) # it intercepts the functions that fortification would replace
    add_compile_definitions(_GLIBCXX_ASSERTIONS)
else()
    add_compile_definitions($<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
    add_compile_options($<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
endif()

if(NIMBRA_SANITIZE)
    add_compile_options(-fsanitize=${NIMBRA_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${NIMBRA_SANITIZE})
endif()
if(NIMBRA_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

# nimbra_room(<name> SOURCES <file>... [PRIVATE <target>...])
function(nimbra_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;PRIVATE" ${ARGN})
    add_library(${name} STATIC ${ROOM_SOURCES})
    target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE nimbra_options ${ROOM_PRIVATE})
endfunction()

# nimbra_headers(<name>): a folder of headers that other rooms may include without its room.
function(nimbra_headers name)
    add_library(${name} INTERFACE)
    target_include_directories(${name} INTERFACE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()

# Seconds. Only a test that hangs reaches it: the longest take half a minute, twenty times as long on a machine that is overloaded.
set(nimbra_test_timeout 1800)
set(nimbra_test_environment QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=allocator_may_return_null=1
    "LSAN_OPTIONS=use_tls=0:print_suppressions=0:suppressions=${CMAKE_SOURCE_DIR}/cmake/lsan.supp")

# nimbra_test(<name> SOURCES <file>... LINK <target>... [LABELS <label>...] [ENVIRONMENT <VAR=value>...] [KERNELS])
# One GoogleTest program, mirrored in tests/<room>/. The label "threads" makes ThreadSanitizer run it too. KERNELS: without
# sanitizers it also runs once for each instruction set that hot loops are compiled for; those that the machine lacks are skipped.
function(nimbra_test name)
    cmake_parse_arguments(TEST "KERNELS" "" "SOURCES;LINK;LABELS;ENVIRONMENT" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE nimbra_options ${TEST_LINK} GTest::gmock_main)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES LABELS "${TEST_LABELS}" TIMEOUT ${nimbra_test_timeout} ENVIRONMENT "${nimbra_test_environment};${TEST_ENVIRONMENT}")
    # Rarely the leak checker itself crashes while it scans the threads' stacks, after all tests have passed.
    set_tests_properties(${name} PROPERTIES SKIP_REGULAR_EXPRESSION "\\[  PASSED  \\].*LeakSanitizer has encountered a fatal error")
    if(NIMBRA_SANITIZE STREQUAL "thread")
        get_filename_component(openmp_folder "${OpenMP_omp_LIBRARY}" DIRECTORY)
        set_property(TEST ${name} APPEND PROPERTY ENVIRONMENT
            "TSAN_OPTIONS=ignore_noninstrumented_modules=1:allocator_may_return_null=1" "OMP_TOOL_LIBRARIES=${openmp_folder}/libarcher.so")
    endif()
    if(TEST_KERNELS AND NOT NIMBRA_SANITIZE AND CMAKE_SYSTEM_PROCESSOR STREQUAL x86_64)
        foreach(set IN ITEMS plain avx2 avx512f)
            add_test(NAME ${name}_${set} COMMAND ${name})
            set_tests_properties(${name}_${set} PROPERTIES LABELS kernels TIMEOUT ${nimbra_test_timeout} SKIP_REGULAR_EXPRESSION "this processor has no"
                ENVIRONMENT "${nimbra_test_environment};${TEST_ENVIRONMENT};NIMBRA_INSTRUCTION_SET=${set}")
        endforeach()
    endif()
endfunction()

# nimbra_fuzz(<name> [MAIN <file>] [SOURCES <file>...] LINK <target>... [DEFINE <NAME=value>...]) One fuzz target, <name>.cpp
# unless MAIN names another file: fuzz_<name> with libFuzzer, and replay_<name>, which the tests run on earlier findings.
function(nimbra_fuzz name)
    cmake_parse_arguments(FUZZ "" "MAIN" "SOURCES;LINK;DEFINE" ${ARGN})
    if(NOT FUZZ_MAIN)
        set(FUZZ_MAIN ${name}.cpp)
    endif()
    set(programs)
    if(NIMBRA_FUZZ)
        add_executable(fuzz_${name} ${FUZZ_MAIN} ${FUZZ_SOURCES})
        target_link_libraries(fuzz_${name} PRIVATE -fsanitize=fuzzer)
        list(APPEND programs fuzz_${name})
    endif()
    if(NIMBRA_TESTS)
        add_executable(replay_${name} replay.cpp ${FUZZ_MAIN} ${FUZZ_SOURCES})
        if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/regressions/${name}")
            add_test(NAME fuzz_regressions_${name} COMMAND replay_${name} "${CMAKE_CURRENT_SOURCE_DIR}/regressions/${name}")
            set_tests_properties(fuzz_regressions_${name} PROPERTIES TIMEOUT ${nimbra_test_timeout} ENVIRONMENT "${nimbra_test_environment}")
        endif()
        list(APPEND programs replay_${name})
    endif()
    foreach(program IN LISTS programs)
        target_link_libraries(${program} PRIVATE nimbra_options ${FUZZ_LINK})
        target_include_directories(${program} PRIVATE "${CMAKE_SOURCE_DIR}/host/batch")
        target_compile_definitions(${program} PRIVATE ${FUZZ_DEFINE})
    endforeach()
endfunction()
