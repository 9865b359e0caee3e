# What every target of the tree shares, and the two helpers that make a room and a test.

# The folder that can be run and copied as it stands: the program and all that must lie beside it.
set(ORVANTA_BIN_DIR ${PROJECT_BINARY_DIR}/bin)
# Where the same folder goes when it is installed; bin/orvanta is a link into it.
set(ORVANTA_INSTALL_DIR ${CMAKE_INSTALL_LIBDIR}/orvanta)

add_library(orvanta_options INTERFACE)
target_compile_options(orvanta_options INTERFACE
    -pthread
    -Wall -Wextra -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${ORVANTA_WERROR}>:-Werror>)
target_compile_definitions(orvanta_options INTERFACE QT_NO_CAST_FROM_BYTEARRAY QT_NO_FOREACH
    QT_NO_KEYWORDS)
if(ORVANTA_SANITIZE)
    target_compile_options(orvanta_options INTERFACE "-fsanitize=${ORVANTA_SANITIZE}")
    target_link_options(orvanta_options INTERFACE "-fsanitize=${ORVANTA_SANITIZE}")
    if(ORVANTA_SANITIZE MATCHES undefined)
        target_compile_options(orvanta_options INTERFACE -fno-sanitize-recover=undefined)
    endif()
else()
    # What comes in is pictures and messages of strangers. CET is for processors that have it, where
    # the system's own start files have it, too.
    target_compile_options(orvanta_options INTERFACE
        -fstack-protector-strong -fstack-clash-protection
        $<$<STREQUAL:${CMAKE_SYSTEM_PROCESSOR},x86_64>:-fcf-protection>
        # Some compilers bring a definition of their own.
        -U_FORTIFY_SOURCE $<$<NOT:$<CONFIG:>>:-D_FORTIFY_SOURCE=2>)
    target_link_options(orvanta_options INTERFACE
        -Wl,-z,relro -Wl,-z,now
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
endif()
if(ORVANTA_FUZZ)
    target_compile_options(orvanta_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
if(ORVANTA_COVERAGE)
    add_library(orvanta_counted_exit STATIC cmake/CountedExit.cpp)
    target_link_options(orvanta_options INTERFACE "LINKER:--wrap=_exit")
    target_link_libraries(orvanta_options INTERFACE orvanta_counted_exit)
endif()

include(cmake/OrvantaPrecompiled.cmake)

# orvanta_room(NAME SOURCES file... [USES target...] [PRECOMPILED kind])
# One folder of the house: the static library orvanta_NAME. Its own folder is the only include
# path it adds, so including a room that is not named under USES is a build error; so is a room that
# is not built yet, which keeps two of them from using each other.
function(orvanta_room name)
    cmake_parse_arguments(ROOM "" "PRECOMPILED" "SOURCES;USES" ${ARGN})
    foreach(used ${ROOM_USES})
        if(used MATCHES "^orvanta_" AND NOT TARGET ${used})
            message(FATAL_ERROR "The room ${name} stands below ${used}")
        endif()
    endforeach()
    add_library(orvanta_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(orvanta_${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(orvanta_${name} PUBLIC ${ROOM_USES} PRIVATE orvanta_options)
    if(ROOM_PRECOMPILED)
        orvanta_use_precompiled(orvanta_${name} ${ROOM_PRECOMPILED})
    endif()
endfunction()

# orvanta_test_program(NAME SOURCES file... [USES target...])
# One test program that nobody runs by itself. NAME.cpp is the source with its test object.
function(orvanta_test_program name)
    cmake_parse_arguments(TEST "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE ${TEST_USES} orvanta_test_options)
    orvanta_use_precompiled(${name} test)
    # One file to be looked through by moc, the one that includes the outcome: quicker than to look
    # for such files, and to build what was found, in each of so many programs.
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    set(moc ${CMAKE_CURRENT_BINARY_DIR}/${name}_moc)
    qt5_generate_moc(${name}.cpp ${moc}/${name}.moc TARGET ${name})
    target_sources(${name} PRIVATE ${moc}/${name}.moc)
    target_include_directories(${name} PRIVATE ${moc})
endfunction()

# orvanta_test(NAME LABEL unit|engine|system SOURCES file... [USES target...] [COST seconds]
#              [COMMAND prefix...] [LAB option...] [ALONE] [BUSY] [THREADS])
# One test program. Unit tests draw on the offscreen platform. COMMAND is put before the program.
# Home, temporary and runtime folders are private to the test. With LAB the program runs inside a
# lab of its own, with these options of tests/lab/lab, such as --camera cam1:1280x720; an option
# that says the default, --screen 1024x768, gives a lab without cameras. ALONE is for what measures
# time: nothing else runs beside it. BUSY is for what keeps a processor busy all the time. COST is
# how long it takes on a quiet machine, if that is more than ten seconds: long ones begin early.
# THREADS is for what the thread sanitizer can judge: ours meet by locks that it sees. Ten minutes
# are for a busy machine, with sanitizers: who hangs is found out late, and who is slow does not fail.
function(orvanta_test name)
    cmake_parse_arguments(TEST "ALONE;BUSY;THREADS" "LABEL;COST" "SOURCES;USES;COMMAND;LAB" ${ARGN})
    if(NOT TEST_COST)
        set(TEST_COST 5)
    endif()
    orvanta_test_program(${name} SOURCES ${TEST_SOURCES} USES ${TEST_USES})
    if(TEST_THREADS)
        list(APPEND TEST_LABEL threads)
        add_dependencies(orvanta_threads_tests ${name})
    endif()
    if(TEST_LAB)
        list(PREPEND TEST_COMMAND ${PROJECT_SOURCE_DIR}/tests/lab/lab
            --tools $<TARGET_FILE_DIR:labcam> ${TEST_LAB} --)
        add_dependencies(${name} labcam)
    endif()
    set(private ${CMAKE_CURRENT_BINARY_DIR}/${name}.private)
    file(MAKE_DIRECTORY ${private}/home ${private}/tmp ${private}/run)
    file(CHMOD ${private}/run PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${name} COMMAND ${TEST_COMMAND} $<TARGET_FILE:${name}>)
    # Whole stacks, or a leak in a library without frame pointers cannot be told from ours. Taking
    # one at each allocation costs more than all else; ten calls are enough where no server's or
    # graphics library is deep in them.
    set(asan fast_unwind_on_malloc=0)
    if("unit" IN_LIST TEST_LABEL)
        string(APPEND asan ":malloc_context_size=10")
    endif()
    set(environment "HOME=${private}/home" "TMPDIR=${private}/tmp" "XDG_RUNTIME_DIR=${private}/run"
        "LC_ALL=C.UTF-8"
        "ASAN_OPTIONS=${asan}"
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp"
        "UBSAN_OPTIONS=print_stacktrace=1"
        "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp")
    if("unit" IN_LIST TEST_LABEL)
        list(APPEND environment "QT_QPA_PLATFORM=offscreen")
    endif()
    set(processors 1)
    # With sanitizers so does what takes long anyway: most of that are movies.
    if(TEST_BUSY OR (ORVANTA_SANITIZE AND TEST_COST GREATER 25))
        set(processors 2) # as many as the tests that share one
    endif()
    set_tests_properties(${name} PROPERTIES
        LABELS "${TEST_LABEL}" TIMEOUT 600 ENVIRONMENT "${environment}"
        RUN_SERIAL ${TEST_ALONE}
        PROCESSORS ${processors}
        COST ${TEST_COST})
endfunction()
