// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/analytics.h"
#include "platform/machine/audio_session.h"
#include "platform/machine/file_chooser.h"
#include "platform/machine/review_prompter.h"
#include "platform/machine/speech_synthesizer.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/mail_composer.h"
#include "platform/screens/presenter.h"
#include "platform/screens/share_sheet.h"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

/// Services that do nothing, for a program that prints and ends.
namespace lumora::terminal {

class NullAnalytics final : public platform::Analytics {
public:
    void logEvent(std::string_view /*name*/,
                  const std::map<std::string, std::string>& /*parameters*/) override
    {}
    void setAnalyticsCollectionEnabled(bool /*enabled*/) override {}
};

class NullPresenter final : public platform::Presenter {
public:
    void performSegue(platform::ViewController& /*source*/, std::string_view /*identifier*/,
                      std::optional<platform::IndexPath> /*sender*/) override
    {}
    void previewSegue(platform::ViewController& /*source*/, std::string_view /*identifier*/,
                      std::optional<platform::IndexPath> /*sender*/) override
    {}
    void present(platform::ViewController& /*on*/,
                 std::shared_ptr<platform::ViewController> /*screen*/) override
    {}
    void presentAlert(platform::ViewController& /*on*/, const platform::Alert& /*alert*/) override
    {}
    void presentActionSheet(platform::ViewController& /*on*/,
                            const platform::ActionSheet& /*sheet*/,
                            platform::IndexPath /*anchor*/) override
    {}
    void dismiss(platform::ViewController& /*presented*/, std::function<void()> completed) override
    {
        if (completed) {
            completed();
        }
    }
};

class NullSpeechSynthesizer final : public platform::SpeechSynthesizer {
public:
    void setDelegate(platform::SpeechSynthesizerDelegate* delegate) override
    {
        delegate_ = delegate;
    }
    void speak(const platform::Utterance& utterance) override
    {
        if (delegate_ != nullptr) {
            delegate_->didCancel(utterance);
        }
    }
    void stopSpeaking() override {}
    bool isSpeaking() const override { return false; }

private:
    platform::SpeechSynthesizerDelegate* delegate_ = nullptr;
};

class NullSpeech final : public platform::SpeechSynthesizerFactory {
public:
    std::unique_ptr<platform::SpeechSynthesizer> makeSpeechSynthesizer() override
    {
        return std::make_unique<NullSpeechSynthesizer>();
    }
};

class NullAudioSession final : public platform::AudioSession {
public:
    float outputVolume() const override { return 0; }
    platform::Result<void> setCategoryPlayback() override { return {}; }
    platform::Result<void> activate() override { return {}; }
};

class NullShareSheet final : public platform::ShareSheet {
public:
    void present(platform::ViewController& /*on*/, platform::ShareItems /*items*/,
                 std::string_view /*anchor*/) override
    {}
};

class NullReviewPrompter final : public platform::ReviewPrompter {
public:
    void requestReview() override {}
};

class NullUrlOpener final : public platform::UrlOpener {
public:
    bool canOpen(std::string_view /*url*/) const override { return false; }
    bool open(std::string_view /*url*/) override { return false; }
};

class NullFileChooser final : public platform::FileChooser {
public:
    void choose(const platform::FileQuestion& /*question*/,
                std::function<void(const std::filesystem::path&)> /*chosen*/) override
    {}
};

/// Its messages go nowhere and say nothing.
class NullMailComposer final : public platform::MailComposer {
public:
    void setMailComposeDelegate(platform::MailComposerDelegate* /*delegate*/) override {}
    void setToRecipients(std::vector<std::string> /*addresses*/) override {}
    void setSubject(std::string /*subject*/) override {}
    void setMessageBody(std::string /*body*/, bool /*isHtml*/) override {}
};

class NullMailService final : public platform::MailService {
public:
    bool canSendMail() const override { return false; }
    std::shared_ptr<platform::MailComposer> makeMailComposer() override
    {
        return std::make_shared<NullMailComposer>();
    }
};

} // namespace lumora::terminal
