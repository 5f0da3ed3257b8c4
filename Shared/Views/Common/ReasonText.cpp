// SPDX-License-Identifier: Apache-2.0
#include "Views/Common/ReasonText.h"

#include "Kit/Core/ErrorText.h"

#include <QCoreApplication>

namespace lodestar
{
namespace
{

struct Words {
    Q_DECLARE_TR_FUNCTIONS(lodestar::ReasonText)
};

QString refreshOnceMore()
{
    return Words::tr("Refresh once more.");
}

QString checkAddress()
{
    return Words::tr("Check the address.");
}

QString checkService()
{
    return Words::tr("Check the address; it may be another service.");
}

QString tellUs()
{
    return Words::tr("Tell us through feedback.");
}

QStringList busyConsole()
{
    return {Words::tr("Refresh once more. A busy console often answers the second time."),
            Words::tr("If the same feed fails again, restart the console’s web service.")};
}

} // namespace

QString reasonText(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return Words::tr("nothing within 10 s");
    case ReadingReason::NameNotFound:
        return Words::tr("name not found");
    case ReadingReason::ConnectionRefused:
        return Words::tr("connection refused");
    case ReadingReason::ConnectionLost:
        return Words::tr("connection broke off");
    case ReadingReason::TooManyRedirects:
        return Words::tr("redirected too often");
    case ReadingReason::NotUnderstood:
        return Words::tr("answer not understood");
    case ReadingReason::TooLarge:
        return Words::tr("answer too large");
    case ReadingReason::NoSecureConnection:
        return Words::tr("no secure connection");
    case ReadingReason::CertificateChanged:
        return Words::tr("its certificate changed");
    case ReadingReason::WrongCredentials:
        return Words::tr("wrong user or password");
    case ReadingReason::ServerError:
        //: %1 an HTTP status
        return Words::tr("the console failed to answer (%1)").arg(statusOf(error));
    case ReadingReason::OtherStatus:
        //: %1 an HTTP status
        return Words::tr("answered %1").arg(statusOf(error));
    case ReadingReason::NoSessionKey:
        return Words::tr("no session key");
    case ReadingReason::Unknown:
        break;
    }
    return errorText(error);
}

QString reasonVerdict(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return Words::tr("It did not answer within 10 s.");
    case ReadingReason::NameNotFound:
        return Words::tr("Its name has no address.");
    case ReadingReason::ConnectionRefused:
        return Words::tr("Something is there, but refuses port 12443.");
    case ReadingReason::ConnectionLost:
        return Words::tr("It broke off while answering.");
    case ReadingReason::TooManyRedirects:
        return Words::tr("It sent Lodestar from one address to the next.");
    case ReadingReason::NotUnderstood:
        return Words::tr("What it answered is not HTTP.");
    case ReadingReason::TooLarge:
        return Words::tr("It answered more than Lodestar takes.");
    case ReadingReason::NoSecureConnection:
        return Words::tr("It offers no secure connection that this device accepts.");
    case ReadingReason::CertificateChanged:
        return Words::tr("Its certificate changed in the middle of the attempt. No password was sent.");
    case ReadingReason::WrongCredentials:
        return Words::tr("It refused the user or the password.");
    case ReadingReason::ServerError:
        return Words::tr("It answered with an error of its own.");
    case ReadingReason::OtherStatus:
        return Words::tr("It gave an answer that was not expected.");
    case ReadingReason::NoSessionKey:
        return Words::tr("It accepted the logon but gave no key.");
    case ReadingReason::Unknown:
        break;
    }
    return errorText(error);
}

QStringList reasonSteps(const Error& error)
{
    switch (reasonOf(error)) {
    case ReadingReason::TimedOut:
        return {Words::tr("Check that this device is on the right network."),
                Words::tr("A firewall may drop port 12443."),
                Words::tr("Refresh in some minutes; the console may be starting.")};
    case ReadingReason::NameNotFound:
        return {Words::tr("Check the spelling of the address."), Words::tr("Check this device's network."),
                Words::tr("Try the number instead of the name.")};
    case ReadingReason::ConnectionRefused:
        return {Words::tr("The console may be starting; refresh in some minutes."), checkAddress()};
    case ReadingReason::ConnectionLost:
        return {refreshOnceMore(), Words::tr("If it stays so, look at what lies between here and the console.")};
    case ReadingReason::TooManyRedirects:
    case ReadingReason::NotUnderstood:
    case ReadingReason::OtherStatus:
        return {checkService()};
    case ReadingReason::TooLarge:
        return {tellUs()};
    case ReadingReason::NoSecureConnection:
        return {Words::tr("Update the console: its TLS may be too old."), checkAddress()};
    case ReadingReason::CertificateChanged:
        return {Words::tr("Before you refresh, compare the new fingerprint below with the one that the console shows."),
                Words::tr("If they agree, refresh. The new one is then taken."),
                Words::tr(
                    "If not, something else answers at this address. Do not refresh; ask those who run the network.")};
    case ReadingReason::WrongCredentials:
        return {Words::tr("Check the user on the console; it may be locked."),
                Words::tr("Delete the console and add it with the new password.")};
    case ReadingReason::ServerError:
        return busyConsole();
    case ReadingReason::NoSessionKey:
    case ReadingReason::Unknown:
        break;
    }
    return {refreshOnceMore(), tellUs()};
}

QStringList feedSteps(const Error& error)
{
    return reasonOf(error) == ReadingReason::TimedOut ? busyConsole() : reasonSteps(error);
}

QString reasonCode(const Error& error)
{
    if (const int status = statusOf(error); status != 0) {
        return QString::number(status);
    }
    return error.domain == urlErrorDomain ? QString::number(error.code) : QString();
}

} // namespace lodestar
