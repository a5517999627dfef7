#pragma once
#include "Commands.h"

#include <nlohmann/json.hpp>

namespace zorvane::sim {

// Each subsystem brings its own script commands and its part of `state`.
void addStaffCommands(CommandTable& table);
void addBuildingCommands(CommandTable& table);
void addMovieCommands(CommandTable& table);
void addConcessionCommands(CommandTable& table);
void addArcadeCommands(CommandTable& table);
void addPromoCommands(CommandTable& table);
void addLoanCommands(CommandTable& table);
void addGoalCommands(CommandTable& table);
void addFileCommands(CommandTable& table);
void addGraphCommands(CommandTable& table);
void addSettingsCommands(CommandTable& table);

void addStaffState(Game& game, nlohmann::json& state);
void addBuildingState(Game& game, nlohmann::json& state);
void addMovieState(Game& game, nlohmann::json& state);
void addConcessionState(Game& game, nlohmann::json& state);
void addArcadeState(Game& game, nlohmann::json& state);
void addReputationState(Game& game, nlohmann::json& state);
void addLoanState(Game& game, nlohmann::json& state);
void addGoalState(Game& game, nlohmann::json& state);
void addGraphState(Game& game, nlohmann::json& state);
void addSettingsState(Game& game, nlohmann::json& state);

} // namespace zorvane::sim
