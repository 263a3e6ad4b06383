// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

// The numbers of the theme's colours, for Theme::GetColor, by the names that the theme documents of
// vek give them. A theme that a host fills itself answers the same numbers.

namespace lumui::ui::themev2 {

// What trees, their headers and plain texts are painted with; each generation of documents may be
// loaded beside the others, since their numbers lie apart.
enum Color : int {
  // Trees.
  kColor_TreeHeaderLine = 232,
  kColor_TreeBackground = 233,
  kColor_TreeSelectedRow = 234,
  kColor_TreeSelectedRowText = 235,
  kColor_TreeHoverRow = 236,
  kColor_TreeInsertionFeedback = 237,
  kColor_TreeDropBoxFill = 238,
  kColor_TreeDropBoxStroke = 239,
  kColor_TreeText = 240,
  kColor_TreeTextDisabled = 241,
  kColor_TreeTwisty = 242,
  kColor_TreeTwistyHover = 243,
  kColor_TreeGuideLine = 244,
  kColor_TreeAlternateRow = 245,
  kColor_TreeInactiveSelectedRow = 246,
  // Headers.
  kColor_HeaderOuterGradientTop = 247,
  kColor_HeaderOuterGradientBottom = 248,
  kColor_HeaderInnerGradientTop = 249,
  kColor_HeaderInnerGradientBottom = 250,
  kColor_HeaderColumnGroove = 251,
  kColor_HeaderColumnRidge = 252,
  kColor_HeaderText = 253,
  kColor_HeaderTextShadow = 254,
  kColor_HeaderTextPressed = 255,
  kColor_HeaderSortArrow = 256,
  kColor_HeaderDropFrame = 257,
  kColor_HeaderDropBar = 258,
  kColor_HeaderTopBorder = 259,
  kColor_HeaderMenuGlyph = 260,
  // Windows and text.
  kColor_DefaultText = 312,
  kColor_DefaultTextShadow = 313,
  kColor_DefaultTextDisabled = 314,
  kColor_DefaultTextSecondary = 315,
  kColor_LinkText = 316,
  kColor_LinkTextHover = 317,
  kColor_ErrorText = 318,
  kColor_WarningMark = 319,
  kColor_AppBackground = 320,
  kColor_WindowBackground = 321,
  kColor_Focus = 322,
  kColor_FocusHalo = 323,
  // Frames.
  kColor_TreeBorder = 324,
  kColor_ListBoxShadow = 325,
  kColor_GroupBoxStroke = 326,
  kColor_GroupBoxText = 327,
  kColor_DividerLight = 328,
  kColor_TreeRowSeparator = 329,
  kColor_DividerDark = 330,
  kColor_SplitterGrip = 331,
};

}  // namespace lumui::ui::themev2

namespace lumui::ui::themev5 {

// What the present controls are painted with.
enum Color : int {
  // Palette.
  kColor_Unused = 5000000,
  kColor_Gray_01 = 5000001,
  kColor_Gray_02 = 5000002,
  kColor_Gray_03 = 5000003,
  kColor_Gray_04 = 5000004,
  kColor_Gray_05 = 5000005,
  kColor_Gray_06 = 5000006,
  kColor_Gray_07 = 5000007,
  kColor_Gray_08 = 5000008,
  kColor_Gray_09 = 5000009,
  kColor_Gray_10 = 5000010,
  kColor_Blue = 5000011,
  // Core.
  kColor_AppBackground = 5000012,
  kColor_PanelBackground = 5000013,
  kColor_Text = 5000014,
  kColor_TextSecondary = 5000015,
  kColor_TextDisabled = 5000016,
  kColor_Divider = 5000017,
  kColor_Focus = 5000018,
  // Button.
  kColor_ButtonBackground = 5000019,
  kColor_ButtonBackgroundHover = 5000020,
  kColor_ButtonBackgroundDown = 5000021,
  kColor_ButtonBorder = 5000022,
  kColor_ButtonText = 5000023,
  // Fields.
  kColor_FieldBackground = 5000024,
  kColor_FieldBackgroundHover = 5000025,
  kColor_FieldBackgroundDisabled = 5000026,
  kColor_FieldBorder = 5000027,
  kColor_FieldBorderHover = 5000028,
  kColor_FieldText = 5000029,
  kColor_FieldTextDisabled = 5000030,
  kColor_FieldPlaceholder = 5000031,
  kColor_FieldSelection = 5000032,
  kColor_FieldSelectionText = 5000033,
  // Accent and disabled buttons.
  kColor_AccentButtonBackground = 5000034,
  kColor_AccentButtonBackgroundHover = 5000035,
  kColor_AccentButtonBackgroundDown = 5000036,
  kColor_AccentButtonText = 5000037,
  kColor_ButtonBackgroundDisabled = 5000038,
  kColor_ButtonTextDisabled = 5000039,
  // Checks.
  kColor_CheckBackground = 5000040,
  kColor_CheckBorder = 5000041,
  kColor_CheckBackgroundOn = 5000042,
  kColor_CheckMark = 5000043,
  kColor_CheckMarkDisabled = 5000044,
  // Sliders and progress.
  kColor_SliderTrack = 5000045,
  kColor_SliderTrackFilled = 5000046,
  kColor_SliderThumb = 5000047,
  kColor_SliderThumbHover = 5000048,
  kColor_ProgressFill = 5000049,
  // Scroll bars.
  kColor_ScrollTrack = 5000050,
  kColor_ScrollThumb = 5000051,
  kColor_ScrollThumbHover = 5000052,
  kColor_ScrollThumbDown = 5000053,
  // Lists.
  kColor_ListBackground = 5000054,
  kColor_ListBackgroundAlternate = 5000055,
  kColor_ListText = 5000056,
  kColor_ListRowHover = 5000057,
  kColor_ListRowSelected = 5000058,
  kColor_ListTextSelected = 5000059,
  kColor_ListRowSelectedInactive = 5000060,
  kColor_ListRowSeparator = 5000061,
  kColor_ListBorder = 5000062,
  kColor_ListTwisty = 5000063,
  // Headers.
  kColor_HeaderBackground = 5000064,
  kColor_HeaderText = 5000065,
  kColor_HeaderLine = 5000066,
  kColor_HeaderSortArrow = 5000067,
  // Tabs.
  kColor_TabBackground = 5000068,
  kColor_TabBackgroundHover = 5000069,
  kColor_TabBackgroundSelected = 5000070,
  kColor_TabText = 5000071,
  kColor_TabTextSelected = 5000072,
  // Menus.
  kColor_MenuBackground = 5000073,
  kColor_MenuText = 5000074,
  kColor_MenuTextDisabled = 5000075,
  kColor_MenuItemHover = 5000076,
  kColor_MenuTextHover = 5000077,
  kColor_MenuBorder = 5000078,
  // Messages.
  kColor_LinkText = 5000079,
  kColor_ErrorText = 5000080,
  kColor_WarningBackground = 5000081,
  kColor_WarningText = 5000082,
  // Tools.
  kColor_DropTarget = 5000083,
  kColor_BrushShapePreviewFill = 5000084,
  kColor_BrushShapePreviewOutline = 5000085,
  kColor_Shadow = 5000086,
  // Tool tips.
  kColor_ToolTipBackground = 5000087,
  kColor_ToolTipBorder = 5000088,
  kColor_ToolTipText = 5000089,
  // Canvas: only where the theme of applications for artwork is loaded.
  kColor_Canvas = 5000090,
  kColor_CanvasBorder = 5000091,
  kColor_CanvasShadow = 5000092,
  kColor_ArtboardBorder = 5000093,
  kColor_ArtboardLabel = 5000094,
  kColor_GridLine = 5000095,
  kColor_GridLineMajor = 5000096,
  kColor_GuideLine = 5000097,
  kColor_RulerBackground = 5000098,
  kColor_RulerTick = 5000099,
  kColor_RulerText = 5000100,
  kColor_SelectionHandleFill = 5000101,
  kColor_SelectionHandleStroke = 5000102,
  kColor_MarqueeFill = 5000103,
  kColor_MarqueeStroke = 5000104,
  kColor_TimelineBackground = 5000105,
  kColor_Playhead = 5000106,
};

}  // namespace lumui::ui::themev5
