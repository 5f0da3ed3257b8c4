# A night over six consoles. Seconds stand for minutes and hours; the clock that is meant stands in the remarks.
#   lodestar-simulator --consoles 6 --story night.story

0    all  console    calm
0    0    console    name="Harbour A"
0    1    console    name="Harbour B"
0    2    console    name="Ridgeway Laboratory"
0    3    console    name="Northfield Recovery Site"
0    4    console    name="Uplands Colocation"
0    5    console    name="Quayside 12"

# What was so before.
0    0    partition  2 name=batch-night-2
0    1    system     0 name=helios-01
0    1    system     1 name=helios-02
0    1    system     2 name=helios-03
0    1    system     3 name=helios-04
0    1    server     0 name=vios-harbour-1a
0    1    server     1 name=vios-harbour-1b
0    1    server     2 name=vios-harbour-2a
0    1    server     3 name=vios-harbour-2b
0    1    partition  10 name=Ledger-Migration-Rehearsal-2026
0    0    event      0371 open code=X211-0040 ago=400000 text="Fan 2 below its rated speed"
0    0    event      0377 open code=X211-0040 ago=90000 times=5 text="Fan 3 below its rated speed"
0    1    event      1036 open code=X417-2208 ago=250000 text="Power supply 1 of drawer 1 was replaced"
0    2    event      0215 open code=N140-7A01 ago=500000 text="Memory module deconfigured & kept out of use until <reseated>"
0    2    event      0219 open code=N210-00C4 ago=300000 callhome=yes text="The service processor was reset by its watchdog"
0    4    event      0088 open code=C702-11F0 ago=700000 text="Battery of the drawer is near the end of its life"
0    5    event      0002 open code=N140-7A01 ago=800000 text="Redundant link to the console is down"

# Monday morning.
10   1    system     helios-02 led=on

# 21:40
30   1    partition  Ledger-Migration-Rehearsal-2026 state=error code=X417-2208
30   1    event      1037 open code=X530-1107 system=helios-02 text="Adapter in slot C4 reports link errors"

# 02:58: between the session check and the logon another certificate is shown, and stays.
60   3    certificate swaps once

# 03:12
90   1    system     helios-04 state=incomplete led=on
90   1    system     helios-03 state=error code=X417-2208
90   1    server     vios-harbour-2b state=error

# 07:46 to 08:26
120  4    console    silent
120  0    partition  16-27 state=starting
150  1    event      1041 open code=X530-1107 system=helios-02 text="Adapter in slot C4 reports link errors"
180  4    console    back
180  0    event      0371 gone
195  0    partition  16-27 state=running code=none

# 09:41
240  0    partition  batch-night-2 state="not activated" code=00000000
240  1    event      1042 open code=X417-2208 callhome=yes system=helios-03 text="Power supply 2 of drawer 1 does not deliver its rated output; redundancy is lost until it is replaced"
240  2    feed       LogicalPartition missing status=500
240  2    feed       Group missing status=503

# The morning after: helios-03 is repaired, the laboratory answers in full.
600  1    system     helios-03 state=operating code=00000000
600  1    server     vios-harbour-2b state=running
600  1    event      1042 closed
600  2    feed       LogicalPartition back
600  2    feed       Group back
660  0    partition  batch-night-2 state=running code=none
