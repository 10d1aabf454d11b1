# marivale_add_qt_test(<name> SOURCES <files...> LIBS <targets...>)
# A QtTest executable run headless from the program directory, with a private HOME and runtime
# directory so the sound and settings stacks never write into the real home.
set(MARIVALE_TEST_HOME ${CMAKE_BINARY_DIR}/test-home)
set(MARIVALE_TEST_RUNTIME ${CMAKE_BINARY_DIR}/test-runtime)
file(MAKE_DIRECTORY ${MARIVALE_TEST_HOME} ${MARIVALE_TEST_RUNTIME})
file(CHMOD ${MARIVALE_TEST_RUNTIME} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

function(marivale_add_qt_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt6::Test Qt6::Widgets ${ARG_LIBS})
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY ${MARIVALE_RUN_DIR})
    # Tests run from the program directory, beside the pictures and the bell.
    add_dependencies(${name} marivale_assets)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;HOME=${MARIVALE_TEST_HOME};XDG_RUNTIME_DIR=${MARIVALE_TEST_RUNTIME};XDG_CONFIG_HOME=${MARIVALE_TEST_HOME}/.config;ASAN_OPTIONS=detect_leaks=0")
endfunction()
