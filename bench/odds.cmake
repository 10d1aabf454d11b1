# Speed of the odds: building a game's tables, the 32 holds of one hand, a whole game, and the
# marivale-odds tool as a fresh process.
add_executable(marivale-odds-bench odds_benchmark.cpp)
target_link_libraries(marivale-odds-bench PRIVATE marivale_odds benchmark::benchmark)
if(TARGET marivale-odds)
    add_dependencies(marivale-odds-bench marivale-odds)
    target_compile_definitions(marivale-odds-bench PRIVATE
        MARIVALE_ODDS_TOOL="$<TARGET_FILE:marivale-odds>")
endif()

# How long closing a board takes while its Strategy window is still working.
if(MARIVALE_HAVE_QT AND TARGET marivale_strategy)
    add_executable(marivale-strategy-bench strategy_benchmark.cpp)
    target_link_libraries(marivale-strategy-bench PRIVATE marivale_strategy benchmark::benchmark)
endif()
