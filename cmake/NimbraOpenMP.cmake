# One OpenMP run-time, LLVM's, whichever compiler builds: hosts and plug-ins share locks of it, and the engine sets how long its
# threads wait. Clang brings it. Another compiler's code runs on it as well, provided that it is compiled with LLVM's omp.h, whose
# locks are larger than those of g++'s; that header comes from the folder of clang's own headers, all others of which stay out.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    file(GLOB clang_folders "/usr/lib*/llvm*/lib*/clang/*/include" "/usr/lib/llvm/*/lib*/clang/*/include" "/usr/lib*/clang/*/include")
    find_path(LLVM_OPENMP_INCLUDE_DIR omp.h PATHS ${clang_folders} /usr/include NO_DEFAULT_PATH
        DOC "Folder with the omp.h of LLVM's OpenMP run-time")
    set(is_llvm "")
    if(LLVM_OPENMP_INCLUDE_DIR)
        file(STRINGS "${LLVM_OPENMP_INCLUDE_DIR}/omp.h" is_llvm REGEX kmp_set_blocktime)
    endif()
    file(REAL_PATH "${LLVM_OPENMP_INCLUDE_DIR}" llvm_folder)
    find_library(OpenMP_omp_LIBRARY omp HINTS "${llvm_folder}/../../.." DOC "LLVM's OpenMP run-time")
    if(NOT is_llvm OR NOT OpenMP_omp_LIBRARY)
        message(FATAL_ERROR "LLVM's OpenMP run-time is not installed (libomp-dev): set LLVM_OPENMP_INCLUDE_DIR to the folder of its "
            "omp.h and OpenMP_omp_LIBRARY to libomp.so")
    endif()
    configure_file("${LLVM_OPENMP_INCLUDE_DIR}/omp.h" "${CMAKE_BINARY_DIR}/llvm-openmp/omp.h" COPYONLY)
    set(OpenMP_CXX_FLAGS -fopenmp)
    set(OpenMP_CXX_LIB_NAMES omp)
endif()
find_package(OpenMP REQUIRED)
if(NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    target_include_directories(OpenMP::OpenMP_CXX SYSTEM INTERFACE "${CMAKE_BINARY_DIR}/llvm-openmp")
endif()

# nimbra_without_openmp(<imported target>): a library's own flag for the link would bring the compiler's run-time.
function(nimbra_without_openmp target)
    foreach(property IN ITEMS INTERFACE_LINK_LIBRARIES INTERFACE_LINK_OPTIONS INTERFACE_COMPILE_OPTIONS)
        get_target_property(flags ${target} ${property})
        if(flags)
            list(FILTER flags EXCLUDE REGEX "^-fopenmp|^-l?gomp$|libgomp")
            set_property(TARGET ${target} PROPERTY ${property} "${flags}")
        endif()
    endforeach()
endfunction()
