#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "core/document/global.h"
#include "core/planner/plan.h"
#include "core/platform.h"

namespace tavrel {

inline constexpr std::string_view kPlanExtension = ".pln";

/// The name of the current plan: its file name less the extension.
std::filesystem::path PlanName(const Global& global);

/// The plan in the file named by `PlanPath`. Throws RunTimeError.
Plan LoadPlan(const Global& global);

/// Writes the plan into the file named by `PlanPath`, whole or not at all. Throws FileError.
void SavePlan(const Plan& plan, const Global& global, Platform& platform);

/// Deletes the file named by `PlanPath` if it exists. Throws FileError.
void DeletePlanFile(const Global& global);

/// The bytes of a plan file: 130 lines.
std::string PlanText(const Plan& plan);

/// Reads the bytes of a plan file; what follows its 130 lines does not matter. Throws RunTimeError if it ends
/// early or a tick is none.
Plan ReadPlanText(std::string_view text);

}  // namespace tavrel
