// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The browser's French voice. It tells where it is in a text, or it does not: then
// the places are estimated by the time.

import type { Channel } from './channel';
import { showNotice } from './dialogs';

interface Utterance { utterance: number; text: string; language: string; rate: number; man: boolean }

const charactersASecond = 13;
const patience = 2500;
// A voice may have to be loaded first.
const patienceAtFirst = 8000;

export class Speech {
    private timers: number[] = [];
    private current = 0;

    constructor(private readonly channel: Channel) {
        // The list of voices comes later than the first question for it.
        this.voices();
    }

    say(order: Utterance): void {
        this.silence();
        const voice = this.voice(order);
        if (!voice) {
            showNotice(this.channel.text('web.voice.none'));
            this.tell(order.utterance, 'cancel');
            return;
        }
        const speech = new SpeechSynthesisUtterance(order.text);
        speech.voice = voice;
        speech.lang = voice.lang;
        speech.rate = Math.min(2, Math.max(0.5, order.rate));
        this.current = order.utterance;
        speech.onboundary = (event) => {
            this.stopClock();
            this.tell(order.utterance, 'word', event.charIndex, event.charLength || 1);
            this.startClock(order, order.text.length - event.charIndex, false);
        };
        speech.onstart = () => {
            this.stopClock();
            this.startClock(order, order.text.length, true);
        };
        speech.onend = () => this.end(order.utterance, 'end');
        speech.onerror = () => this.end(order.utterance, 'cancel');
        this.giveUpAfter(order.utterance, patienceAtFirst);
        speechSynthesis.speak(speech);
    }

    silence(): void {
        this.stopClock();
        this.current = 0;
        if ('speechSynthesis' in window) {
            speechSynthesis.cancel();
        }
    }

    private voices(): SpeechSynthesisVoice[] {
        return 'speechSynthesis' in window ? speechSynthesis.getVoices() : [];
    }

    private voice(order: Utterance): SpeechSynthesisVoice | undefined {
        const spoken = this.voices().filter((each) => each.lang.toLowerCase().startsWith(order.language));
        // "fr-FR" rather than another country's.
        const own = spoken.filter((each) => each.lang.slice(3).toLowerCase() === order.language);
        const fitting = own.length > 0 ? own : spoken;
        // Only its name tells whether a voice is a woman's or a man's.
        const wanted = order.man ? /\b(male|homme|thomas|henri|paul|nicolas|daniel)\b/i
            : /female|femme|amélie|amelie|marie|denise|audrey|aurélie|hortense|julie/i;
        return fitting.find((each) => wanted.test(each.name)) ?? fitting.find((each) => each.default) ?? fitting[0];
    }

    private end(utterance: number, news: 'end' | 'cancel'): void {
        if (this.current === utterance) {
            this.stopClock();
            this.current = 0;
            this.tell(utterance, news);
        }
    }

    private startClock(order: Utterance, left: number, words: boolean): void {
        const perCharacter = 1000 / charactersASecond / order.rate;
        for (const match of words ? order.text.matchAll(/\S+/g) : []) {
            this.timers.push(window.setTimeout(
                () => this.tell(order.utterance, 'word', match.index, match[0].length), match.index * perCharacter));
        }
        this.giveUpAfter(order.utterance, left * perCharacter + patience);
    }

    // A voice that never says that it has ended must not stay the last.
    private giveUpAfter(utterance: number, milliseconds: number): void {
        this.timers.push(window.setTimeout(() => {
            this.end(utterance, 'end');
            speechSynthesis.cancel();
        }, milliseconds));
    }

    private stopClock(): void {
        this.timers.forEach((timer) => clearTimeout(timer));
        this.timers = [];
    }

    private tell(utterance: number, news: string, location = 0, length = 0): void {
        this.channel.send('speech', { utterance, news, location, length });
    }
}
