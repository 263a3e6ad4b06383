// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"

namespace lumui::drawbot {
class ImageInterface;
class SupplierInterface;
}  // namespace lumui::drawbot

namespace lumui::utility {

class ResourceManager;

// Some callers name an image with the ending of its file, which is no part of the resource's name.
lumcore::UTF16String ImageNameWithoutEnding(const lumcore::UTF16String& inName);

// See DrawbotImageResourceCache.
boost::intrusive_ptr<drawbot::ImageInterface> LoadResourceImage(
    const ResourceManager& inResources, const drawbot::SupplierInterface& inSupplier,
    const lumcore::UTF16String& inName);

}  // namespace lumui::utility
