// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>

namespace lumora::platform {

class Analytics;
class AudioSession;
class Bundle;
class Clock;
class CrashReporter;
class Device;
class FileChooser;
class JavaScriptContextFactory;
class MailService;
class NotificationCenter;
class Presenter;
class ReviewPrompter;
class SettingsStore;
class ShareSheet;
class SpeechSynthesizerFactory;
class Storyboard;
class UrlOpener;
class ViewFactory;

/// What every screen may ask of the machine. The composition root owns all of
/// it and keeps it longer than any screen; a screen holds a reference to it.
/// A helper that is no screen is handed the interfaces that it uses.
struct Services {
    NotificationCenter& notifications;
    SettingsStore& settings;
    const Bundle& bundle;
    const Device& device;
    Clock& clock;
    CrashReporter& crashReporter;
    Analytics& analytics;
    /// Diagnostic lines for whoever started the program on a console.
    std::ostream& console;
    ViewFactory& views;
    Presenter& presenter;
    Storyboard& storyboard;
    SpeechSynthesizerFactory& speech;
    AudioSession& audioSession;
    JavaScriptContextFactory& scripts;
    ShareSheet& shareSheet;
    ReviewPrompter& reviewPrompter;
    MailService& mail;
    UrlOpener& urlOpener;
    FileChooser& fileChooser;
    /// What settings::ViewMemory keeps.
    SettingsStore& viewMemory;
};

} // namespace lumora::platform
