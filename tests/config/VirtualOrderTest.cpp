// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// Hosts that were compiled earlier call by position, so the order of virtual operations may not
// change. A pointer to a virtual member holds that position in the Itanium C++ ABI for x86-64: one
// more than the offset in the table. A destructor takes two positions there.

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <string>

#include "lumcore/config/ErrorManager.h"
#include "vek/app/MultiDocApplication.h"
#include "vek/document/DocumentTypeInfo.h"
#include "vek/document/FileBasedDocument.h"
#include "vek/hierarchyview/DynamicHierarchyEntry.h"
#include "vek/hierarchyview/HierarchyArrowTracker.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/selection/Junction.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Restorer.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/undo/MultiDeed.h"
#include "vek/undo/MultiUndoerHooks.h"
#include "vek/workspace/GenericPanelCreatorBase.h"

namespace {

template <class Member>
int Position(Member inMember) {
  std::ptrdiff_t offset = 0;
  std::memcpy(&offset, &inMember, sizeof(offset));
  return static_cast<int>((offset - 1) / static_cast<std::ptrdiff_t>(sizeof(void*)));
}

template <class... Members>
std::string Positions(Members... inMembers) {
  std::string text;
  ((text += std::to_string(Position(inMembers)) + " "), ...);
  return text;
}

// Protected operations are named through a derived class.
struct DeedProbe : vek::undo::MultiDeed {
  static std::string Get() {
    return Positions(&DeedProbe::GetActionString, &DeedProbe::GetUndoDescription,
                     &DeedProbe::GetRedoDescription, &DeedProbe::Undo, &DeedProbe::Redo,
                     &DeedProbe::DoStillViable, &DeedProbe::RedoSelf, &DeedProbe::UndoSelf,
                     &DeedProbe::AddDeed);
  }
};

struct HandlerProbe : vek::uisupport::CommandHandler {
  static std::string Get() {
    return Positions(&HandlerProbe::SetAsCurrentCommandHandler, &HandlerProbe::DoCallMyCommandChain,
                     &HandlerProbe::DoCallMyEnablementChain, &HandlerProbe::DoCallEndHoldCommand,
                     &HandlerProbe::DoGetCommandContext, &HandlerProbe::DoLostCommandFocus,
                     &HandlerProbe::DoGainedCommandFocus, &HandlerProbe::OnParentHandlerSet,
                     &HandlerProbe::DoHandleCommand, &HandlerProbe::DoCommandEnabled,
                     &HandlerProbe::DoEndHoldCommand);
  }
};

struct DocumentProbe : vek::document::FileBasedDocument {
  static std::string Get() {
    return Positions(&DocumentProbe::HasAttachment, &DocumentProbe::GetCommandAttachment,
                     &DocumentProbe::Close, &DocumentProbe::LoadFromFile,
                     &DocumentProbe::SaveToFile, &DocumentProbe::Save, &DocumentProbe::CanClose,
                     &DocumentProbe::GetTitle, &DocumentProbe::SaveAs, &DocumentProbe::SetDirty,
                     &DocumentProbe::Parent, &DocumentProbe::GetSaveFileNameFromDialog,
                     &DocumentProbe::SaveBeforeCloseMessage);
  }
};

struct AppProbe : vek::app::MultiDocApplication {
  static std::string Get() {
    return Positions(
        &AppProbe::RunEventLoop, &AppProbe::EndEventLoop, &AppProbe::ModalPumpEventQueue,
        &AppProbe::RebuildMenuState, &AppProbe::InitErrorManager, &AppProbe::InitLocalizer,
        &AppProbe::InitMemoryTracker, &AppProbe::InitXMLParserFactory, &AppProbe::InitWorkspace,
        &AppProbe::TerminateWorkspace, &AppProbe::InitWorkspaceManagerMenu, &AppProbe::InitModules,
        &AppProbe::InitPreferences, &AppProbe::InitDrawing, &AppProbe::TerminateDrawing,
        &AppProbe::LoadDefaultTheme, &AppProbe::InitThemeEditor, &AppProbe::InitResourceManager,
        &AppProbe::InitImageCache, &AppProbe::InitWorkspaceMenuHelper,
        &AppProbe::InitWorkspaceManager, &AppProbe::InitWorkspaceProvider,
        &AppProbe::GetNewSplashScreen, &AppProbe::OSInitialize, &AppProbe::OSTerminate,
        &AppProbe::OSTerminateDrawing, &AppProbe::GetClientName, &AppProbe::GetClientVersion,
        &AppProbe::GetClientInternalVersion, &AppProbe::GetCompanyName,
        &AppProbe::GetClientBuildNumber, &AppProbe::InitApplication,
        &AppProbe::TerminateApplication, &AppProbe::OnWorkspaceReady,
        &AppProbe::ApplyDefaultWorkspace, &AppProbe::SaveDefaultWorkSpace,
        &AppProbe::RegisterApplicationCommands, &AppProbe::DoAppCanQuit,
        &AppProbe::DoAppActiveStateChanged, &AppProbe::MenubarCreateHook,
        &AppProbe::LoadAppSettings, &AppProbe::SaveAppSettings, &AppProbe::UseCustomPrefsDir,
        &AppProbe::GetAppPrefsDir, &AppProbe::DoIdle, &AppProbe::DoPreEventProcessing,
        &AppProbe::DoPostEventProcessing, &AppProbe::GetAppSettingsFileName,
        &AppProbe::GetDefaultWorkspaceName, &AppProbe::DoBeforeMenuPopup,
        &AppProbe::EndEventLoopDuringSessionEnd, &AppProbe::MainWindowDefaultProc,
        &AppProbe::GetCommandID);
  }
  static std::string GetOfDocuments() {
    return Positions(&AppProbe::CloseAnyOpenDocuments, &AppProbe::SetDocument,
                     &AppProbe::CloseDocument);
  }
};

struct TreeProbe : vek::hierarchyview::TreeControlBase {
  static std::string Get() {
    using vek::selection::Manager;
    Manager* (TreeProbe::*constManager)() const = &TreeProbe::GetSelectionManager;
    Manager* (TreeProbe::*manager)() = &TreeProbe::GetSelectionManager;
    return Positions(&TreeProbe::SelectionChanged, &TreeProbe::ResizeHierarchy,
                     &TreeProbe::ExpandAll, &TreeProbe::ExpandNode, &TreeProbe::CanExpandNode,
                     &TreeProbe::CollapseNode, &TreeProbe::CanCollapseNode, &TreeProbe::GotoLast,
                     &TreeProbe::GotoFirst, &TreeProbe::SetBackgroundColor,
                     &TreeProbe::SetCustomTextColor, &TreeProbe::SetCustomSelectionColor,
                     &TreeProbe::DoBuildHierarchy, &TreeProbe::SetupIdleTimeCallback,
                     &TreeProbe::ReleaseIdleTimeCallback, &TreeProbe::NumSelectedEntries,
                     &TreeProbe::SetFocusItem, constManager, manager, &TreeProbe::CreateGeometry,
                     &TreeProbe::CreateRowGeometryFactory, &TreeProbe::DoDeselectAll,
                     &TreeProbe::DoSelectEntry, &TreeProbe::DoToggleEntrySelectionState,
                     &TreeProbe::GetExpandedTwisty, &TreeProbe::GetUnExpandedTwisty,
                     &TreeProbe::GetTypeAheadID, &TreeProbe::DoDrawItemDropFeedback,
                     &TreeProbe::DoDrawViewDropFeedback, &TreeProbe::DoServeDropTracker,
                     &TreeProbe::DoStartDragOut, &TreeProbe::DoProcessOnOpenSelected);
  }
};

struct ArrowProbe : vek::hierarchyview::HierarchyArrowTracker {
  static std::string Get() {
    return Positions(&ArrowProbe::TrackClickOnItem, &ArrowProbe::TrackClickOffItem,
                     &ArrowProbe::TrackClickOnColExpPart, &ArrowProbe::SelectHierarchyItem,
                     &ArrowProbe::StartDragEvent);
  }
};

struct EntryProbe : vek::hierarchyview::DynamicHierarchyEntry {
  static std::string Get() {
    void (EntryProbe::*const setMarquee)(bool) = &EntryProbe::HasMarquee;
    return Positions(
        &EntryProbe::GetNodeState, &EntryProbe::SetNodeState, setMarquee, &EntryProbe::GetNodeIcon,
        &EntryProbe::GetNodeFont, &EntryProbe::SortChildren, &EntryProbe::ResortChildren,
        &EntryProbe::HasSortAxis, &EntryProbe::GetCellText, &EntryProbe::Selected,
        &EntryProbe::CanExpand, &EntryProbe::CanCollapse, &EntryProbe::GetDataAsSelNode,
        &EntryProbe::BuildChildList, &EntryProbe::ClearChildList, &EntryProbe::EntryStateChanged);
  }
};

TEST(VirtualOrder, IsWhatHostsWereCompiledAgainst) {
  using vek::selection::Junction;
  using vek::selection::Manager;
  using vek::selection::Restorer;
  using Hooks = vek::undo::MultiUndoerHooks;
  EXPECT_EQ(Positions(&Junction::AllSelectables, &Junction::DefaultSelectables), "2 3 ");
  EXPECT_EQ(Positions(&Restorer::Restore, &Restorer::MergeIn), "2 3 ");
  // Behind the destructor and the three operations of the counted base.
  EXPECT_EQ(Positions(&Manager::SelectAll, &Manager::DeselectAll, &Manager::NewRestorerFactory),
            "5 6 7 ");
  EXPECT_EQ(DeedProbe::Get(), "2 3 4 5 6 7 8 9 10 ");
  EXPECT_EQ(Positions(&Hooks::WillPostDeed, &Hooks::DidPostDeed, &Hooks::WillUndoDeed,
                      &Hooks::DidUndoDeed, &Hooks::WillRedoDeed, &Hooks::DidRedoDeed),
            "2 3 4 5 6 7 ");
  // Three private operations stand behind the title.
  EXPECT_EQ(DocumentProbe::Get(), "2 3 4 5 6 7 8 9 13 14 15 16 17 ");
  EXPECT_EQ(Positions(&lumcore::config::ErrorManager::ExecuteTopLevelFunction), "6 ");
  using Type = vek::document::DocumentTypeInfo;
  EXPECT_EQ(Positions(&Type::ExtensionPushBack, &Type::ExtensionRemove, &Type::ExtensionBegin,
                      &Type::ExtensionEnd),
            "5 6 7 8 ");
  std::string all;
  for (int position = 2; position <= 54; ++position)
    all += std::to_string(position) + " ";
  EXPECT_EQ(AppProbe::Get(), all);
  EXPECT_EQ(AppProbe::GetOfDocuments(), "55 56 57 ");
  EXPECT_EQ(EntryProbe::Get(), "5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 ");
  // The destructor stands behind them.
  EXPECT_EQ(ArrowProbe::Get(), "7 8 9 10 11 ");
  std::string tree;
  for (int i = 15; i <= 46; ++i)
    tree += std::to_string(i) + " ";
  EXPECT_EQ(TreeProbe::Get(), tree);
  using Geometry = vek::hierarchyview::HierarchyGeometry;
  EXPECT_EQ(Positions(&Geometry::EntryLevel, &Geometry::EntryWidthHeight, &Geometry::begin,
                      &Geometry::end, &Geometry::beginDeep, &Geometry::endDeep, &Geometry::rbegin,
                      &Geometry::rend),
            "0 1 2 3 4 5 6 7 ");
  using Creator = vek::workspace::GenericPanelCreatorBase;
  EXPECT_EQ(Positions(&Creator::BuildPanel, &Creator::GetFirstPlace), "2 3 ");
  // The destructor stands second.
  EXPECT_EQ(HandlerProbe::Get(), "0 3 4 5 6 7 8 9 10 11 12 ");
}

}  // namespace
