// Gives every class of the plug-in its fixed suffix, so that it can never clash with a class of another plug-in in the
// same process. Include it first in each header that declares one of them: code, forms and moc use the bare names, the
// linker and the meta objects see the suffixed ones.
#pragma once

#define PDEPlugIn PDEPlugIn_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define PDEPlugInInterface PDEPlugInInterface_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define MainView MainView_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define PainChangeController PainChangeController_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define PDECommon PDECommon_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define ControlTableView ControlTableView_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define ColorOptions ColorOptions_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define AdvancedColorOptions AdvancedColorOptions_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define ProfileControl ProfileControl_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define BVTextField BVTextField_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
#define IconedCell IconedCell_5C1D7A20_93B4_4E6F_8A2D_7F04C9B1E356
