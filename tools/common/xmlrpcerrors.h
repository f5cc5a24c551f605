// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <stdexcept>

namespace quv {

/// The codes of the faults that the transport raises itself.
enum FaultCode {
    FaultNotWellFormed = -32700, ///< no XML, or XML that is refused as such (a DTD, too large, too deep)
    FaultNotXmlRpc = -32600,     ///< XML, but no XML-RPC document, or a value out of its range
    FaultInternal = -32603       ///< the request was read, and its handler failed
};

/// What an XML-RPC reply carries in place of a value.
struct Fault
{
    int code = 0;
    QString text{};
};

/// A document that cannot be read, or a value that cannot be written.
class CodecError : public std::runtime_error
{
public:
    CodecError(int faultCode, const QString &text)
        : std::runtime_error(text.toStdString()),
          m_faultCode(faultCode)
    {}

    /// The FaultCode under which a server reports it.
    int faultCode() const { return m_faultCode; }

private:
    int m_faultCode = FaultNotWellFormed;
};

/// A fault: thrown by a server's handler to answer with it, and by the client that receives it.
class FaultException : public std::runtime_error
{
public:
    explicit FaultException(const Fault &fault) : std::runtime_error(fault.text.toStdString()), m_fault(fault)
    {}

    const Fault &fault() const { return m_fault; }

private:
    Fault m_fault{};
};

/// No connection, no answer, or an answer that cannot be read; a server that cannot listen. The text is for the user.
class TransportError : public std::runtime_error
{
public:
    explicit TransportError(const QString &text) : std::runtime_error(text.toStdString()) {}
};

/// An HTTP status other than 200 in the place of an answer.
class HttpRefusal : public TransportError
{
public:
    HttpRefusal(unsigned status, const QString &text) : TransportError(text), m_status(status) {}

    unsigned status() const { return m_status; }
    /// The request was not carried out: the server found it wrong.
    bool isOfRequest() const { return m_status >= 400 && m_status < 500; }

private:
    unsigned m_status = 0;
};

} // namespace quv
