// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/indicator_source.h"

#include <QQmlEngine>

#include <algorithm>
#include <utility>

namespace lumora::qt {

IndicatorSource::IndicatorSource(std::shared_ptr<platform::AnimatedView> view)
    : view_{std::move(view)}
{
    // Without this QML would take an object without a parent for its own.
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    view_->setHost(this);
}

IndicatorSource::~IndicatorSource()
{
    view_->setHost(nullptr);
}

IndicatorPool::IndicatorPool() = default;
IndicatorPool::~IndicatorPool() = default;

IndicatorSource* IndicatorPool::sourceFor(const std::shared_ptr<platform::AnimatedView>& view)
{
    if (!view) {
        return nullptr;
    }
    const auto found = std::find_if(sources_.begin(), sources_.end(),
                                    [&](const auto& source) { return source->isFor(view.get()); });
    if (found != sources_.end()) {
        return found->get();
    }
    return sources_.emplace_back(std::make_unique<IndicatorSource>(view)).get();
}

void IndicatorPool::dropOrphans()
{
    std::erase_if(sources_, [](const auto& source) { return source->isOrphaned(); });
}

} // namespace lumora::qt
