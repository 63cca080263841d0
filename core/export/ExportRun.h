#pragma once

namespace sw {

struct Session;
class SectionEncoder;

// File, Create Sections: the whole export run, from the click to the clear question.
void mnuCreate_Click(Session& session);

// The run with the given writers.
void RunExport(Session& session, SectionEncoder& encoder);

} // namespace sw
