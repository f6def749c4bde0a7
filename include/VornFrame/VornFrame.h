// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

/// \file
/// Every exported class of the library.

#include <VornFrame/AddressBar.h>
#include <VornFrame/DockContainer.h>
#include <VornFrame/DockContentWidget.h>
#include <VornFrame/DockPanelWidget.h>
#include <VornFrame/RibbonBar.h>
#include <VornFrame/RibbonCorner.h>
#include <VornFrame/RibbonGallery.h>
#include <VornFrame/RibbonGroup.h>
#include <VornFrame/RibbonPage.h>
#include <VornFrame/RibbonSubgroup.h>
#include <VornFrame/VornFrameAgent.h>
#include <VornFrame/VornFrameGlobal.h>
