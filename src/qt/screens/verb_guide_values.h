// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>
#include <QVariantList>

namespace lumora::qt {

/// A verb that a tap leads to.
struct VerbLinkValue {
    Q_GADGET
    QML_VALUE_TYPE(verbLink)
    Q_PROPERTY(int id MEMBER id FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)

public:
    int id = -1;
    QString title;
};

/// One thing about a verb: a text, or links.
struct VerbCardLineValue {
    Q_GADGET
    QML_VALUE_TYPE(verbCardLine)
    Q_PROPERTY(QString label MEMBER label FINAL)
    Q_PROPERTY(QString text MEMBER text FINAL)
    Q_PROPERTY(QVariantList links MEMBER links FINAL)

public:
    QString label;
    QString text;
    /// Of VerbLinkValue.
    QVariantList links;
};

/// Another row that reads the same.
struct FormLinkValue {
    Q_GADGET
    QML_VALUE_TYPE(formLink)
    Q_PROPERTY(QString row MEMBER row FINAL)
    Q_PROPERTY(QString tenseTitle MEMBER tenseTitle FINAL)
    Q_PROPERTY(int segment MEMBER segment FINAL)
    Q_PROPERTY(int tense MEMBER tense FINAL)
    Q_PROPERTY(int line MEMBER line FINAL)

public:
    QString row;
    QString tenseTitle;
    int segment = 0;
    int tense = 0;
    int line = 0;
};

/// What can be said of one form; without a row where there is no such form.
struct FormSheetValue {
    Q_GADGET
    QML_VALUE_TYPE(formSheet)
    Q_PROPERTY(QString row MEMBER row FINAL)
    Q_PROPERTY(QString form MEMBER form FINAL)
    Q_PROPERTY(QString ipa MEMBER ipa FINAL)
    Q_PROPERTY(QString tenseTitle MEMBER tenseTitle FINAL)
    Q_PROPERTY(QString otherTitle MEMBER otherTitle FINAL)
    Q_PROPERTY(QString person MEMBER person FINAL)
    Q_PROPERTY(QVariantList others MEMBER others FINAL)
    Q_PROPERTY(int tense MEMBER tense FINAL)
    Q_PROPERTY(int line MEMBER line FINAL)

public:
    QString row;
    QString form;
    QString ipa;
    QString tenseTitle;
    QString otherTitle;
    QString person;
    /// Of FormLinkValue.
    QVariantList others;
    int tense = 0;
    int line = 0;
};

/// What a tense is for; without a title where there is no such tense.
struct TenseNoteValue {
    Q_GADGET
    QML_VALUE_TYPE(tenseNote)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString otherTitle MEMBER otherTitle FINAL)
    Q_PROPERTY(QString use MEMBER use FINAL)
    Q_PROPERTY(QString example MEMBER example FINAL)
    Q_PROPERTY(QString translation MEMBER translation FINAL)

public:
    QString title;
    QString otherTitle;
    QString use;
    QString example;
    QString translation;
};

} // namespace lumora::qt
