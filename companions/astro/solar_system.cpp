// SPDX-FileCopyrightText: the common_interfaces authors
// SPDX-License-Identifier: MIT
#include "astro/solar_system.h"

struct CQXSolSys::Inside {};

CQXSolSys::CQXSolSys() : m_Inside(new Inside) {}
CQXSolSys::~CQXSolSys() { delete m_Inside; }
bool CQXSolSys::SetAimObject(const SSO_ID&, const void*) { return false; }
bool CQXSolSys::SetLocateObject(const SSO_ID&, const void*) { return false; }
bool CQXSolSys::SetAdditionalObject(const SSO_ID&, const void*) { return false; }
bool CQXSolSys::InitIntegr(const SSO_ID&, const void*) { return false; }
double CQXSolSys::GetGravity(const SSO_ID&) const { return 0.0; }
