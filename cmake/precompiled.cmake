# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Headers that most files of the window read anyway, read once for all of them.
#
# lumora_precompile(TARGET KIND): KIND is window or window_test. The headers of a
# kind are made ready by a target of their own with as few definitions as they
# need, since the compiler takes them only where all of these are set as well.
set(lumora_window_headers
    <algorithm> <filesystem> <functional> <map> <memory> <optional> <string> <string_view> <vector>
    <QAbstractListModel> <QHash> <QObject> <QPointer> <QQuickItem> <QQuickWindow> <QString>
    <QVariant> <QtQml/qqml.h>)
set(lumora_window_libraries Qt6::Quick)
set(lumora_window_test_headers ${lumora_window_headers} <gmock/gmock.h> <gtest/gtest.h>)
set(lumora_window_test_libraries GTest::gmock Qt6::Quick)

function(lumora_precompile target kind)
    set(headers lumora_${kind}_headers)
    if(NOT TARGET ${headers})
        set(source ${CMAKE_BINARY_DIR}/generated/nothing.cpp)
        file(WRITE ${source} "")
        add_library(${headers} OBJECT ${source})
        target_link_libraries(${headers} PRIVATE ${lumora_${kind}_libraries})
        target_precompile_headers(${headers} PRIVATE ${${headers}})
    endif()
    target_precompile_headers(${target} REUSE_FROM ${headers})
endfunction()
