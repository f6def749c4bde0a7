// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

/// The library's light look for a whole program that does not use its agent.
namespace LightLook {

/// Sets the light colour scheme and the library's global style sheet on the application.
void install();

} // namespace LightLook
