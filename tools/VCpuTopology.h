#pragma once

struct VCpuTopology;

/// The record in use, or null: the one made here, or the host's.
extern VCpuTopology *cpuTopology;

/// Takes the host's record, or makes one without a result if `shared` is null. The machine is asked at the first query.
void initTopology(VCpuTopology **shared);
/// Deletes the record in use. Harmless without one. To be called only for a record that was made here.
void releaseTopology();

/// Cores, and logical processors, that the process may use; 0 if they could not be counted.
int coreCountOfMachine();
int logicalCountOfMachine();

/// The cores, or the OpenMP run-time's thread count if they can't be counted, or 1.
int physicalCores();
/// Logical processors for each core, truncated; at least 1.
int threadsPerCore();
