// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

// What the worker tells the page, and what the page tells the worker. The events'
// parts are those that web_events.cpp reads.

export interface Run { text: string; style: 'plain' | 'light' | 'strong' | 'accent' | 'underlined' }
export interface LineStyle { runs: Run[]; hint: string; caption: string; spoken: string }
export interface Ring { ring: number; value: number }
export type Control = null | { on: boolean } | { titles: string[]; selected: number } | Ring;
export interface Cell {
    reuse: string; text: string; note: string; detail: string; lineStyle: LineStyle; image: string;
    id: string; label: string; selectable: boolean; disclosure: boolean; control: Control;
    section: number; row: number; editable: boolean;
}
export type LayoutRun = ['header' | 'footer', string] | ['cells', number];
export interface TableState {
    table: number; revision: number; open?: number; empty: null | { text: string };
    layout?: LayoutRun[]; index?: [string, number][]; rows?: (Cell | null)[];
}
export interface Button { id: string; title: string; image: string; enabled: boolean }
export interface Bar { title: string; left: Button | null; right: Button[] }
interface Screen { screen: number; bar: Bar }
export interface Reading { headword: string; detail: string; kind: string }
export interface HomeState extends Screen {
    kind: 'home'; tabs: { tag: number; title: string; image: string }[]; tab: number;
    search: { placeholder: string; text: string; id: string; focus: boolean };
    list: TableState | null; results: TableState | null; chips?: { title: string; on: boolean }[];
    readings?: Reading[]; nothingFound?: boolean; formsOffered?: boolean;
}
export interface CardLine { label: string; text: string; links: { id: number; title: string }[] }
export interface SquareLine {
    leading: string; trailing: string; label: string; lineStyle: LineStyle; control: Ring | null;
}
export interface Squares { title: string; items: { title: string; rows: SquareLine[] }[] }
export interface VerbState extends Screen {
    kind: 'verb'; select: string | null; verb?: number; moods: string[]; mood: number;
    table: TableState; collection: Squares | null; opened: number; voice: number; marks: boolean;
    hasForms: boolean; spoken: string; summary: string; card: CardLine[]; cardOpen: boolean;
    previous: string; next: string;
}
export interface OptionsState extends Screen {
    kind: 'options'; table: TableState; firstRow: number;
    header: { icon: string; title: string; copyright: string; website: string; support: string };
}
export interface TableScreenState extends Screen { kind: 'table' | 'apps'; table: TableState }
export interface PlainState extends Screen { kind: 'plain' }
export type ScreenState = HomeState | VerbState | OptionsState | TableScreenState | PlainState;
export interface Question {
    title: string; message: string; sheet: boolean; cancellable: boolean;
    answers: { title: string; destructive: boolean; cancel: boolean; chosen: boolean }[];
}
export interface SwipeOffer {
    title: string; image: string; style: 'normal' | 'destructive' | 'cancel';
    color: [number, number, number, number] | null;
}
export interface Preview {
    title: string; translation: string; summary: string; table: TableState; actions: SwipeOffer[];
}
export interface State {
    primary: ScreenState[]; secondary: ScreenState[]; collapsed: boolean; primaryHidden: boolean;
    modals: { menu: boolean; screens: ScreenState[] }[];
    question: Question | null; preview: Preview | null;
}
// The verb on show, beside the lists or over them.
export function openVerb(state: State): VerbState | undefined {
    return [...state.primary, ...state.secondary].reverse()
        .find((screen): screen is VerbState => screen.kind === 'verb' && screen.verb !== undefined);
}
export interface TenseName { title: string; other: string }
export interface FormSheet {
    row: string; form: string; ipa: string; tense: TenseName; person: string;
    others: { row: string; tense: string; segment: number; section: number; line: number }[];
}
export interface TenseNote { tense: TenseName; use: string; example: string; translation: string }

export type Todo =
    | { do: 'timer'; timer: number; milliseconds: number }
    | { do: 'ring'; ring: number; from: number; to: number; seconds: number }
    | { do: 'speak'; utterance: number; text: string; language: string; rate: number; man: boolean }
    | { do: 'silence' }
    | { do: 'open'; url: string }
    | { do: 'mail'; to?: string[]; subject?: string; body?: string; html?: boolean }
    | { do: 'share'; title: string; text: string; html: string; anchor: string }
    | { do: 'pick'; extension: string }
    | { do: 'save'; name: string; content: string };

export type Event = { event: string } & Record<string, unknown>;
export interface Answer { state?: State; todo?: Todo[]; reply?: unknown }
export type Texts = Record<string, string>;
// Where the person's rows are kept: in private files, as a copy in the browser's
// database, or nowhere.
export type Keeping = 'files' | 'copy' | 'nothing';
export interface Facts { languages: string[]; width: number; system: string }
export type ToWorker =
    | { kind: 'start'; facts: Facts; texts: string }
    | { kind: 'compiled'; module: WebAssembly.Module | null }
    | { kind: 'event'; number: number; event: Event }
    | { kind: 'stop' };
export type FromWorker =
    | { kind: 'started'; texts: Texts; keeping: Keeping; version: string; answer: string }
    | { kind: 'answer'; number: number; answer: string }
    | { kind: 'prepared' }
    | { kind: 'failed'; reason: string }
    | { kind: 'stopped' };
