# Speed of the odds: building a game's tables, the 32 holds of one hand, a whole game.
add_executable(marivale-odds-bench odds_benchmark.cpp)
target_link_libraries(marivale-odds-bench PRIVATE marivale_odds benchmark::benchmark)
