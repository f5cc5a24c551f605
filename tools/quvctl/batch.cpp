// SPDX-License-Identifier: LGPL-3.0-or-later
#include "batch.h"

#include "operations.h"

#include <QuvFramework/fw_error.h>

#include <xmlrpcpp/XmlRpcException.h>

#include <istream>
#include <ostream>

namespace quv {

namespace {

enum class Line { Whole, TooLong, End };

/// Reads to the end of a line, and keeps no more of it than a request may have.
Line readLine(std::istream &in, std::string &line)
{
    using Traits = std::istream::traits_type;
    std::streambuf &buffer = *in.rdbuf();
    line.clear();
    std::size_t length = 0;
    Traits::int_type c = buffer.sbumpc();
    if (Traits::eq_int_type(c, Traits::eof()))
        return Line::End;
    for (; !Traits::eq_int_type(c, Traits::eof()); c = buffer.sbumpc()) {
        if (Traits::to_char_type(c) == '\n')
            break;
        if (++length <= longestRequest)
            line.push_back(Traits::to_char_type(c));
    }
    return length <= longestRequest ? Line::Whole : Line::TooLong;
}

OrderedJson handle(const std::string &line)
{
    try {
        if (line.find_first_not_of(" \t\r") == std::string::npos)
            throw BadRequest("an empty line is no request");
        return runOperation(Request(parseJson(line)));
    } catch (const FW_DriverError &error) {
        return failureReply(error);
    } catch (const std::exception &error) {
        return failureReply(error.what());
    } catch (const XmlRpc::XmlRpcException &error) {
        return failureReply(error.getMessage());
    } catch (...) {
        return failureReply("the operation failed");
    }
}

} // namespace

std::string replyTo(const std::string &line)
{
    return writeJson(handle(line));
}

void runBatch(std::istream &in, std::ostream &out)
{
    std::string line;
    for (Line kind = readLine(in, line); kind != Line::End && out; kind = readLine(in, line)) {
        if (kind == Line::TooLong)
            out << writeJson(failureReply("the request is longer than 16 MiB")) << '\n';
        else
            out << replyTo(line) << '\n';
        out.flush();
    }
}

} // namespace quv
