# What all targets of this project are built with, and how a library of it is made.

set( CMAKE_C_STANDARD 11 )
set( CMAKE_CXX_STANDARD 20 )
set( CMAKE_C_STANDARD_REQUIRED ON )
set( CMAKE_CXX_STANDARD_REQUIRED ON )
set( CMAKE_CXX_EXTENSIONS OFF )
set( CMAKE_POSITION_INDEPENDENT_CODE ON )
set( CMAKE_C_VISIBILITY_PRESET hidden )
set( CMAKE_CXX_VISIBILITY_PRESET hidden )
set( CMAKE_VISIBILITY_INLINES_HIDDEN ON )

file( RELATIVE_PATH source_from_build ${CMAKE_BINARY_DIR} ${PROJECT_SOURCE_DIR} )
add_library( tolmo_options INTERFACE )
target_compile_options( tolmo_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror
    # Abort lines name files as they stand in the repository, wherever it was built (a compiler cache may make the path
    # relative to the build).
    -fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=
    -fmacro-prefix-map=${source_from_build}=
)
if( TOLMO_ARCH AND CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64)$" )
    target_compile_options( tolmo_options INTERFACE -march=${TOLMO_ARCH} )
endif()
if( TOLMO_FUZZ )
    set( TOLMO_SANITIZE fuzzer-no-link,address,undefined )
endif()
if( TOLMO_SANITIZE )
    target_compile_options( tolmo_options INTERFACE
        -fsanitize=${TOLMO_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -D_GLIBCXX_ASSERTIONS )
    target_link_options( tolmo_options INTERFACE -fsanitize=${TOLMO_SANITIZE} )
endif()
if( TOLMO_VALGRIND )
    target_compile_definitions( tolmo_options INTERFACE KO_KEEP_NO_BLOCKS )
endif()
if( TOLMO_COVERAGE )
    # Threads count too, and none of their counts is lost. With exceptions, an inline function would have other branches in
    # a test than in a library, and the two could not be added up.
    target_compile_options( tolmo_options INTERFACE --coverage -fprofile-update=atomic -fno-exceptions -O0 -fno-inline )
    target_link_options( tolmo_options INTERFACE --coverage )
endif()

# Shared libraries are compiled as a whole where the compiler can do that, and g++ without parts: decoders gain some 9 %. An
# archive would bind its users to this compiler.
include( CheckIPOSupported )
if( BUILD_SHARED_LIBS AND NOT TOLMO_SANITIZE AND NOT TOLMO_COVERAGE )
    check_ipo_supported( RESULT tolmo_whole LANGUAGES CXX )
endif()

# tolmo_library( NAME FOLDER DESCRIPTION NEEDS... ): libNAME from source/FOLDER, on the libraries NEEDS.
function( tolmo_library name folder description )
    file( GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp )
    file( GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h )
    add_library( ${name} ${sources} )
    add_library( tolmo::${name} ALIAS ${name} )
    target_include_directories( ${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/source>
        $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/tolmo-${PROJECT_VERSION_MAJOR}> )
    target_link_libraries( ${name} PUBLIC ${ARGN} PRIVATE $<BUILD_INTERFACE:tolmo_options> )
    target_compile_options( ${name} PRIVATE -fno-exceptions -fno-rtti -fno-semantic-interposition -fno-plt )
    if( NOT TOLMO_SANITIZE ) # the decoders gain some 6 %
        target_compile_options( ${name} PRIVATE $<$<CONFIG:RelWithDebInfo>:-O3> )
    endif()
    set_target_properties( ${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} )
    if( tolmo_whole )
        set_target_properties( ${name} PROPERTIES
            INTERPROCEDURAL_OPTIMIZATION_RELEASE ON INTERPROCEDURAL_OPTIMIZATION_RELWITHDEBINFO ON )
        target_link_options( ${name} PRIVATE $<$<LINK_LANG_AND_ID:CXX,GNU>:-flto-partition=one> )
    endif()
    # Calls inside a library are direct. Nothing of the C++ library is needed at run time.
    set( map ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/lib${name}.map )
    if( BUILD_SHARED_LIBS )
        # A library stays loaded: threads have something of it to give back at their end, modules are known by address.
        target_link_options( ${name} PRIVATE
            -Wl,-Bsymbolic-functions -Wl,--version-script=${map} -Wl,--as-needed -Wl,-z,nodelete )
        if( NOT TOLMO_SANITIZE ) # clang leaves the sanitizer to the program
            target_link_options( ${name} PRIVATE -Wl,--no-undefined )
        endif()
        set_target_properties( ${name} PROPERTIES LINK_DEPENDS ${map} )
    endif()
    install( TARGETS ${name} EXPORT tolmo-targets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} )
    install( FILES ${headers}
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/tolmo-${PROJECT_VERSION_MAJOR}/${folder} )
    set( pc_name ${name} )
    set( pc_description ${description} )
    list( JOIN ARGN " " pc_requires )
    file( RELATIVE_PATH pc_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX} )
    configure_file( ${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc @ONLY )
    install( FILES ${CMAKE_CURRENT_BINARY_DIR}/${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig )
endfunction()
