<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>Saved %Ln console as %1</numerusform>
            <numerusform>Saved %Ln consoles as %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>export takes --system at most %Ln time.</numerusform>
            <numerusform>export takes --system at most %Ln times.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>verifying %1 of %2, about %Ln s left</numerusform>
            <numerusform>verifying %1 of %2, about %Ln s left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>%Ln console was added.</numerusform>
            <numerusform>%Ln consoles were added.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>%Ln min ago</numerusform>
            <numerusform>%Ln min ago</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>read %Ln h ago</numerusform>
            <numerusform>read %Ln h ago</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>All %Ln console</numerusform>
            <numerusform>All %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1, %Ln thing</numerusform>
            <numerusform>%1, %Ln things</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>%Ln event opened</numerusform>
            <numerusform>%Ln events opened</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>%Ln event gone</numerusform>
            <numerusform>%Ln events gone</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln system</numerusform>
            <numerusform>%Ln systems</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln IO server</numerusform>
            <numerusform>%Ln IO servers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln group</numerusform>
            <numerusform>%Ln groups</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln event</numerusform>
            <numerusform>%Ln events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partition</numerusform>
            <numerusform>%Ln partitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>%Ln more change is not shown.</numerusform>
            <numerusform>%Ln more changes are not shown.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>The rest is %Ln min old.</numerusform>
            <numerusform>The rest is %Ln min old.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>Online, %Ln of 6 feeds missing</numerusform>
            <numerusform>Online, %Ln of 6 feeds missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>no answer within %Ln s</numerusform>
            <numerusform>no answer within %Ln s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln row</numerusform>
            <numerusform>%Ln rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>Next in %Ln min.</numerusform>
            <numerusform>Next in %Ln min.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>Waiting for %1 of %Ln console</numerusform>
            <numerusform>Waiting for %1 of %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%Ln day, %1</numerusform>
            <numerusform>%Ln days, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1, %Ln day, %2</numerusform>
            <numerusform>%1, %Ln days, %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln row</numerusform>
            <numerusform>%Ln rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln of 6 feeds not read</numerusform>
            <numerusform>%Ln of 6 feeds not read</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1, %2 and %Ln more</numerusform>
            <numerusform>%1, %2 and %Ln more</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>A report was made on this device. It holds no passwords and is sent nowhere by itself.</numerusform>
            <numerusform>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>%1 of %Ln console was searched.</numerusform>
            <numerusform>%1 of %Ln consoles were searched.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>%Ln thing</numerusform>
            <numerusform>%Ln things</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>%1 of %Ln console</numerusform>
            <numerusform>%1 of %Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 was not read.</numerusform>
            <numerusform>%1 were not read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>%1 of %Ln resource in error</numerusform>
            <numerusform>%1 of %Ln resources in error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln system</numerusform>
            <numerusform>%Ln systems</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln IO server</numerusform>
            <numerusform>%Ln IO servers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln partition</numerusform>
            <numerusform>%Ln partitions</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln group</numerusform>
            <numerusform>%Ln groups</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln event</numerusform>
            <numerusform>%Ln events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>%Ln thing needs attention</numerusform>
            <numerusform>%Ln things need attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>%Ln event is open</numerusform>
            <numerusform>%Ln events are open</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>%1 of %Ln console answered in full</numerusform>
            <numerusform>%1 of %Ln consoles answered in full</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>%1 of %Ln console did not answer. What it would report is not known.</numerusform>
            <numerusform>%1 of %Ln consoles did not answer. What they would report is not known.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>%Ln thing needed attention there before.</numerusform>
            <numerusform>%Ln things needed attention there before.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>%Ln more thing is not shown.</numerusform>
            <numerusform>%Ln more things are not shown.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln time</numerusform>
            <numerusform>%Ln times</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln row</numerusform>
            <numerusform>%Ln rows</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>Verify %Ln Console</numerusform>
            <numerusform>Verify %Ln Consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 was not read.</numerusform>
            <numerusform>%1 were not read.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 and %Ln more</numerusform>
            <numerusform>%1 and %Ln more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln console</numerusform>
            <numerusform>%Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>Passwords are never read from a sheet: %1 is left out.</numerusform>
            <numerusform>Passwords are never read from a sheet: %1 are left out.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>tried, about %Ln s left</numerusform>
            <numerusform>tried, about %Ln s left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>tried, about %Ln min left</numerusform>
            <numerusform>tried, about %Ln min left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>%Ln of 6 missing</numerusform>
            <numerusform>%Ln of 6 missing</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>Export %Ln Console</numerusform>
            <numerusform>Export %Ln Consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>Add %Ln Console</numerusform>
            <numerusform>Add %Ln Consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>All %Ln are added together, or none.</numerusform>
            <numerusform>All %Ln are added together, or none.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>Try This One Again</numerusform>
            <numerusform>Try These %Ln Again</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>Save It as a Sheet</numerusform>
            <numerusform>Save Them as a Sheet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>Added %Ln console</numerusform>
            <numerusform>Added %Ln consoles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>%Ln resource</numerusform>
            <numerusform>%Ln resources</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>%Ln in error</numerusform>
            <numerusform>%Ln in error</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln row</numerusform>
            <numerusform>%Ln rows</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>%Ln sample had no values and is left out</numerusform>
            <numerusform>%Ln samples had no values and are left out</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>%Ln sample had no time and is left out of the chart</numerusform>
            <numerusform>%Ln samples had no time and are left out of the chart</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>%n Resource</numerusform>
            <numerusform>%n Resources</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln of 6 missing</numerusform>
            <numerusform>%Ln of 6 missing</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>%Ln more time</numerusform>
            <numerusform>%Ln more times</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>%Ln new event</numerusform>
            <numerusform>%Ln new events</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>%Ln console offline</numerusform>
            <numerusform>%Ln consoles offline</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>%Ln system in error</numerusform>
            <numerusform>%Ln systems in error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>%Ln system incomplete</numerusform>
            <numerusform>%Ln systems incomplete</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>%Ln IO server in error</numerusform>
            <numerusform>%Ln IO servers in error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>%Ln partition in error</numerusform>
            <numerusform>%Ln partitions in error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>%Ln console not read in full</numerusform>
            <numerusform>%Ln consoles not read in full</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>%Ln IO server stopped</numerusform>
            <numerusform>%Ln IO servers stopped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>%Ln partition stopped</numerusform>
            <numerusform>%Ln partitions stopped</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>%Ln LED on</numerusform>
            <numerusform>%Ln LEDs on</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>%Ln group in error</numerusform>
            <numerusform>%Ln groups in error</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>%Ln thing got worse</numerusform>
            <numerusform>%Ln things got worse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>%1 on %Ln console</numerusform>
            <numerusform>%1 on %Ln consoles</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>%Ln thing remains</numerusform>
            <numerusform>%Ln things remain</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>%Ln thing got better</numerusform>
            <numerusform>%Ln things got better</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>%Ln of them still needs attention</numerusform>
            <numerusform>%Ln of them still need attention</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>%Ln console needs attention</numerusform>
            <numerusform>%Ln consoles need attention</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 is left out until you refresh it by hand: its certificate changed.</numerusform>
            <numerusform>%1 are left out until you refresh them by hand: their certificates changed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln min</numerusform>
            <numerusform>%Ln min</numerusform>
        </translation>
    </message>
</context>
</TS>
