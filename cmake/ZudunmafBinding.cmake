# Binds the host's services and dictionary at the first call: they are not linked, so the library loads in a process that
# has neither. A distribution's global flags may contain the opposite options; these come after them and win.
include(CheckCXXSourceCompiles)

function(zudunmaf_bind_at_first_call target)
    foreach(word lazy undefs)
        set(CMAKE_REQUIRED_LINK_OPTIONS "LINKER:-z,${word}")
        check_cxx_source_compiles("int main() { return 0; }" ZUDUNMAF_LINKER_Z_${word})
        if(ZUDUNMAF_LINKER_Z_${word})
            target_link_options(${target} PRIVATE "LINKER:-z,${word}")
        endif()
    endforeach()
    # Without a procedure linkage table, the functions would be bound at load.
    target_compile_options(${target} PRIVATE -fplt)
endfunction()
