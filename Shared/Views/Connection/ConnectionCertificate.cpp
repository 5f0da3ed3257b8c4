// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/AgeText.h"
#include "Views/Common/FeedName.h"
#include "Views/Connection/ConnectionSections.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

constexpr std::size_t bytesInGroup = 2;
constexpr std::size_t bytesInLine = 16;

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ConnectionContent)
};

/// "5B0E 41C7 …" in two lines of 32 digits.
QString fingerprintText(const ServerTrust::Fingerprint& fingerprint)
{
    static constexpr auto digits = "0123456789ABCDEF";
    QString text;
    for (std::size_t index = 0; index < fingerprint.size(); ++index) {
        if (index > 0 && index % bytesInLine == 0) {
            text += QLatin1Char('\n');
        } else if (index > 0 && index % bytesInGroup == 0) {
            text += QLatin1Char(' ');
        }
        text += QLatin1Char(digits[fingerprint[index] >> 4U]);
        text += QLatin1Char(digits[fingerprint[index] & 0xFU]);
    }
    return text;
}

QString validText(const ShownCertificate& shown, WallTime now)
{
    //: %1 and %2 dates
    QString range = Words::tr("%1 to %2").arg(AgeText::date(shown.validFrom), AgeText::date(shown.validUntil));
    if (shown.validUntil < now) {
        //: %1 as in "1 Sep 2025 to 31 Aug 2027", %2 a date
        return Words::tr("%1, ended %2").arg(range, AgeText::shortDate(shown.validUntil, now));
    }
    if (shown.validFrom > now) {
        //: %1 as in "1 Sep 2025 to 31 Aug 2027", %2 a date
        return Words::tr("%1, begins %2").arg(range, AgeText::shortDate(shown.validFrom, now));
    }
    return range;
}

QString changedText(const Reading& reading, WallTime now)
{
    const WallTime when = reading.certificate->atSessionCheck ? reading.offlineSince.value_or(reading.ended)
                                                              : reading.certificate->since.value_or(reading.ended);
    //: %1 as in "today, 02:58" or "3 Mar"
    return Words::tr("changed %1").arg(AgeText::momentOfDay(when, now));
}

QString comparedText(const Reading& reading, WallTime now)
{
    const CertificateReading& certificate = *reading.certificate;
    switch (certificate.compared) {
    case CertificateChange::FirstContact:
        return Words::tr("seen for the first time");
    case CertificateChange::Changed:
        return changedText(reading, now);
    case CertificateChange::Unchanged:
        break;
    }
    return certificate.since
               //: %1 as in "3 Mar"
               ? Words::tr("unchanged since %1").arg(AgeText::moment(*certificate.since, now))
               : Words::tr("unchanged");
}

QString trustText(const CertificateReading& certificate)
{
    if (certificate.atSessionCheck) {
        return Words::tr("The new one is neither vouched for by this device’s authorities nor the one shown at the "
                         "session check.");
    }
    return certificate.shown.objection.empty()
               ? Words::tr("Vouched for by this device’s authorities.")
               : Words::tr("Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes "
                           "what it is shown and says here when it changes.");
}

} // namespace

ConnectionSection certificateSection(const Reading& reading, WallTime now)
{
    const CertificateReading& certificate = *reading.certificate;
    const ShownCertificate& shown = certificate.shown;
    ConnectionSection section{.title = Words::tr("Certificate")};
    const auto add = [&section](const QString& title, const QString& value, bool small = false) {
        section.rows << ConnectionRow{.title = title, .detail = value, .small = small};
    };
    if (certificate.atSessionCheck) {
        section.detail = changedText(reading, now);
        add(Words::tr("At the logon, new"), fingerprintText(shown.fingerprint), true);
        add(certificate.atSessionCheckSince
                //: %1 as in "3 Mar"
                ? Words::tr("At the session check, known since %1")
                      .arg(AgeText::moment(*certificate.atSessionCheckSince, now))
                : Words::tr("At the session check"),
            fingerprintText(certificate.atSessionCheck->fingerprint), true);
    }
    add(Words::tr("Subject"), isolated(QString::fromStdString(shown.subject)));
    add(Words::tr("Issuer"), shown.selfIssued ? Words::tr("itself") : isolated(QString::fromStdString(shown.issuer)));
    add(Words::tr("Valid"), validText(shown, now));
    if (!certificate.atSessionCheck) {
        add(Words::tr("SHA-256 fingerprint"), fingerprintText(shown.fingerprint), true);
        add(Words::tr("Compared with last time"), comparedText(reading, now));
    }
    add(Words::tr("Trust"), trustText(certificate), true);
    return section;
}

} // namespace lodestar
