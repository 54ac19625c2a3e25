# The host's services and dictionary are bound at the first call: they are left out of the link, so the library loads
# in a process that has neither. A distribution's global flags may ask for the opposite; these come behind them.
include(CheckCXXSourceCompiles)

function(zudunmaf_bind_at_first_call target)
    foreach(word lazy undefs)
        set(CMAKE_REQUIRED_LINK_OPTIONS "LINKER:-z,${word}")
        check_cxx_source_compiles("int main() { return 0; }" ZUDUNMAF_LINKER_Z_${word})
        if(ZUDUNMAF_LINKER_Z_${word})
            target_link_options(${target} PRIVATE "LINKER:-z,${word}")
        endif()
    endforeach()
    # Without the procedure linkage table, each call would be bound at load.
    target_compile_options(${target} PRIVATE -fplt)
endfunction()
