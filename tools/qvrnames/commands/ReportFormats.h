#pragma once

#include "commands/AuditReport.h"
#include "commands/Commands.h"

/// Prints reports in the format of the request, which is not "text".
void PrintReports(const std::vector<DocumentReport>& reports, const AuditRequest& request, std::ostream& out);
