<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AttentionFilterButton</name>
    <message>
        <source>Show, filtered</source>
        <translation>Anzeigen, gefiltert</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>AttentionFilterScene</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Group by</source>
        <translation>Gruppieren nach</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Kinds</source>
        <translation>Arten</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Konsolen</translation>
    </message>
    <message>
        <source>Find a console</source>
        <translation>Konsole suchen</translation>
    </message>
</context>
<context>
    <name>AttentionNowContent</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Noch keine Konsolen.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvel hinzufügen</translation>
    </message>
</context>
<context>
    <name>AttentionScene</name>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Auffälliges</translation>
    </message>
</context>
<context>
    <name>AttentionWatchButton</name>
    <message>
        <source>Watch</source>
        <translation>Überwachung</translation>
    </message>
</context>
<context>
    <name>ChangesCard</name>
    <message>
        <source>Worse, above</source>
        <translation>Schlechter, oben</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Besser, unten</translation>
    </message>
</context>
<context>
    <name>ChangesContent</name>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
</context>
<context>
    <name>ChosenLine</name>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>%1 needs a value: %2.</source>
        <extracomment>%1 an option, %2 a word for what it takes</extracomment>
        <translation>%1 braucht einen Wert: %2.</translation>
    </message>
    <message>
        <source>Only this console, by name or address; may be repeated.</source>
        <translation>Nur diese Konsole, nach Name oder Adresse; mehrfach möglich.</translation>
    </message>
    <message>
        <source>Write JSON.</source>
        <translation>JSON schreiben.</translation>
    </message>
    <message>
        <source>Write comma-separated values.</source>
        <translation>Durch Kommas getrennte Werte schreiben.</translation>
    </message>
    <message>
        <source>Use this data folder instead of Lodestar&apos;s own.</source>
        <translation>Diesen Datenordner statt des eigenen von Lodestar benutzen.</translation>
    </message>
    <message>
        <source>Say how the command is used.</source>
        <translation>Sagen, wie der Befehl benutzt wird.</translation>
    </message>
    <message>
        <source>Say which version this is.</source>
        <translation>Die Version nennen.</translation>
    </message>
    <message>
        <source>%1 takes a number, not %2.</source>
        <extracomment>%1 an option, %2 what was given</extracomment>
        <translation>%1 verlangt eine Zahl, nicht %2.</translation>
    </message>
    <message>
        <source>%1 takes minutes, or a time as 30s or 2h, not %2.</source>
        <translation>%1 verlangt Minuten oder eine Zeit wie 30s oder 2h, nicht %2.</translation>
    </message>
    <message>
        <source>There is no option %1.</source>
        <translation>Es gibt keine Option %1.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 nimmt keinen Wert.</translation>
    </message>
    <message>
        <source>No command was given.</source>
        <translation>Es wurde kein Befehl angegeben.</translation>
    </message>
    <message>
        <source>There is no command %1.</source>
        <translation>Es gibt keinen Befehl %1.</translation>
    </message>
    <message>
        <source>%1 takes no option %2.</source>
        <translation>%1 kennt keine Option %2.</translation>
    </message>
    <message>
        <source>It is used so: %1</source>
        <translation>So wird er benutzt: %1</translation>
    </message>
    <message>
        <source>--json and --csv exclude one another.</source>
        <translation>--json und --csv schließen einander aus.</translation>
    </message>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Überwacht Corvel-Konsolen und ändert nichts.</translation>
    </message>
    <message>
        <source>With every command:</source>
        <translation>Bei jedem Befehl:</translation>
    </message>
    <message>
        <source>Ends with 0 when all is well, 1 after warnings, 2 after errors, and 3 when that is not known.</source>
        <translation>Endet mit 0, wenn alles gut ist, mit 1 nach Warnungen, mit 2 nach Fehlern und mit 3, wenn es nicht bekannt ist.</translation>
    </message>
    <message>
        <source>Read passwords from descriptor N, one a line.</source>
        <translation>Passwörter von Deskriptor N lesen, eins je Zeile.</translation>
    </message>
    <message>
        <source>Tell how all consoles are. The exit code says how the fleet is.</source>
        <translation>Sagen, wie es allen Konsolen geht. Der Exit-Code sagt es auch.</translation>
    </message>
    <message>
        <source>List everything that needs attention. The exit code as with status.</source>
        <translation>Alles auflisten, was Aufmerksamkeit erfordert. Exit-Code wie bei status.</translation>
    </message>
    <message>
        <source>List consoles, systems, io-servers, partitions, events or groups.</source>
        <translation>consoles, systems, io-servers, partitions, events oder groups auflisten.</translation>
    </message>
    <message>
        <source>Show every field as a column, not only the usual ones.</source>
        <translation>Jedes Feld als Spalte zeigen, nicht nur die üblichen.</translation>
    </message>
    <message>
        <source>Show one object, by identifier, name or number.</source>
        <translation>Ein Objekt zeigen, nach Kennung, Name oder Nummer.</translation>
    </message>
    <message>
        <source>List serviceable events.</source>
        <translation>Serviceereignisse auflisten.</translation>
    </message>
    <message>
        <source>Only open ones.</source>
        <translation>Nur offene.</translation>
    </message>
    <message>
        <source>Only those that are reported to the maker.</source>
        <translation>Nur solche, die dem Hersteller gemeldet werden.</translation>
    </message>
    <message>
        <source>sent, newest (as at first), status or code.</source>
        <translation>sent, newest (ohne Angabe), status oder code.</translation>
    </message>
    <message>
        <source>Show processors and memory of a system over the last half day.</source>
        <translation>Prozessoren und Speicher eines Systems im letzten halben Tag zeigen.</translation>
    </message>
    <message>
        <source>With --csv: memory instead of processors.</source>
        <translation>Mit --csv: Speicher statt Prozessoren.</translation>
    </message>
    <message>
        <source>Read the consoles again and again, and write a line for each change.</source>
        <translation>Die Konsolen immer wieder lesen und je Änderung eine Zeile schreiben.</translation>
    </message>
    <message>
        <source>Minutes between readings, or 30s, 2h; at first as Lodestar&apos;s Watch has it.</source>
        <translation>Minuten zwischen den Lesevorgängen, oder 30s, 2h; ohne Angabe wie in Lodestars Überwachung.</translation>
    </message>
    <message>
        <source>End after so many readings.</source>
        <translation>Nach so vielen Lesevorgängen enden.</translation>
    </message>
    <message>
        <source>Write how all consoles are as OpenMetrics, for Prometheus.</source>
        <translation>Schreiben, wie es allen Konsolen geht, als OpenMetrics für Prometheus.</translation>
    </message>
    <message>
        <source>Replace this file, for a collector of text files; - is standard output.</source>
        <translation>Diese Datei ersetzen, für einen Sammler von Textdateien; - ist die Standardausgabe.</translation>
    </message>
    <message>
        <source>Serve it at /metrics instead, on this machine only; ADDRESS:PORT, too.</source>
        <translation>Stattdessen unter /metrics anbieten, nur auf diesem Rechner; auch ADRESSE:PORT.</translation>
    </message>
    <message>
        <source>With --listen: minutes between readings, or 30s, 2h.</source>
        <translation>Mit --listen: Minuten zwischen den Lesevorgängen, oder 30s, 2h.</translation>
    </message>
    <message>
        <source>Also its processors and memory; may be repeated.</source>
        <translation>Auch seine Prozessoren und seinen Speicher; mehrfach möglich.</translation>
    </message>
    <message>
        <source>List the registered consoles without asking them.</source>
        <translation>Die eingetragenen Konsolen auflisten, ohne sie zu fragen.</translation>
    </message>
    <message>
        <source>Verify a console and register it.</source>
        <translation>Eine Konsole prüfen und eintragen.</translation>
    </message>
    <message>
        <source>Log on as this user.</source>
        <translation>Als dieser Benutzer anmelden.</translation>
    </message>
    <message>
        <source>Call it so; the address at first.</source>
        <translation>Sie so nennen; ohne Angabe nach der Adresse.</translation>
    </message>
    <message>
        <source>Remove a console and what is remembered of it.</source>
        <translation>Eine Konsole entfernen und alles, was von ihr bekannt ist.</translation>
    </message>
    <message>
        <source>Verify the consoles of a fleet sheet and register them together; - reads standard input.</source>
        <translation>Die Konsolen einer Konsolentabelle prüfen und zusammen eintragen; - liest die Standardeingabe.</translation>
    </message>
    <message>
        <source>Register none unless all can be.</source>
        <translation>Keine eintragen, wenn nicht alle eingetragen werden können.</translation>
    </message>
    <message>
        <source>Write the consoles as a fleet sheet, without secrets; - writes standard output.</source>
        <translation>Die Konsolen als Konsolentabelle schreiben, ohne Geheimnisse; - schreibt auf die Standardausgabe.</translation>
    </message>
    <message>
        <source>The same as consoles list.</source>
        <translation>Dasselbe wie consoles list.</translation>
    </message>
    <message>
        <source>%1 did not answer: %2.</source>
        <extracomment>%1 a console, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>%1 antwortete nicht: %2.</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>%1: %2.</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;</extracomment>
        <translation>%1: %2.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Noch keine Konsolen.</translation>
    </message>
    <message>
        <source>Several consoles are called %1. Name one by its address.</source>
        <translation>Mehrere Konsolen heißen %1. Nennen Sie eine nach ihrer Adresse.</translation>
    </message>
    <message>
        <source>%1 was removed.</source>
        <translation>%1 wurde entfernt.</translation>
    </message>
    <message>
        <source>consoles export writes a fleet sheet; consoles list --json writes JSON.</source>
        <translation>consoles export schreibt eine Konsolentabelle; consoles list --json schreibt JSON.</translation>
    </message>
    <message>
        <source>Could not be saved: %1</source>
        <translation>Konnte nicht gespeichert werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>Saved %Ln consoles as %1</source>
        <extracomment>%1 the name of a file</extracomment>
        <translation>
            <numerusform>%Ln Konsole als %1 gespeichert</numerusform>
            <numerusform>%Ln Konsolen als %1 gespeichert</numerusform>
        </translation>
    </message>
    <message>
        <source>export takes either --openmetrics FILE or --listen PORT.</source>
        <translation>export verlangt entweder --openmetrics DATEI oder --listen PORT.</translation>
    </message>
    <message>
        <source>--every goes with --listen; a file is written once.</source>
        <translation>--every gehört zu --listen; eine Datei wird einmal geschrieben.</translation>
    </message>
    <message>
        <source>export writes OpenMetrics.</source>
        <translation>export schreibt OpenMetrics.</translation>
    </message>
    <message numerus="yes">
        <source>export takes --system at most %Ln times.</source>
        <translation>
            <numerusform>export nimmt --system höchstens %Ln-mal.</numerusform>
            <numerusform>export nimmt --system höchstens %Ln-mal.</numerusform>
        </translation>
    </message>
    <message>
        <source>The metrics of %1 cannot be had: %2.</source>
        <extracomment>%1 a system, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Die Messwerte von %1 sind nicht verfügbar: %2.</translation>
    </message>
    <message>
        <source>Listening on %1</source>
        <translation>Lauscht auf %1</translation>
    </message>
    <message>
        <source>%1 is no file that could be replaced.</source>
        <translation>%1 ist keine Datei, die sich ersetzen ließe.</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>reading %1 of %2</source>
        <extracomment>numbers of consoles</extracomment>
        <translation>liest %1 von %2</translation>
    </message>
    <message>
        <source>%1 was left out: its certificate changed within an attempt. To take the new one, name the console with --console.</source>
        <translation>%1 wurde ausgelassen: Das Zertifikat änderte sich während eines Versuchs. Um das neue anzunehmen, nennen Sie die Konsole mit --console.</translation>
    </message>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>This is not a CSV file: %1.</source>
        <translation>Das ist keine CSV-Datei: %1.</translation>
    </message>
    <message>
        <source>registered already, left alone</source>
        <translation>schon eingetragen, bleibt unverändert</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>keine Adresse</translation>
    </message>
    <message>
        <source>no user</source>
        <translation>kein Benutzer</translation>
    </message>
    <message>
        <source>no address of a console: %1</source>
        <translation>keine Adresse einer Konsole: %1</translation>
    </message>
    <message>
        <source>the same address as row %1</source>
        <translation>gleiche Adresse wie Zeile %1</translation>
    </message>
    <message>
        <source>Password of %1</source>
        <translation>Passwort von %1</translation>
    </message>
    <message numerus="yes">
        <source>verifying %1 of %2, about %Ln s left</source>
        <translation>
            <numerusform>prüft %1 von %2, noch etwa %Ln&#xa0;s</numerusform>
            <numerusform>prüft %1 von %2, noch etwa %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message>
        <source>verifying %1 of %2</source>
        <translation>prüft %1 von %2</translation>
    </message>
    <message>
        <source>Nothing was added.</source>
        <translation>Nichts wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>The column %1 was not read: passwords do not belong in a sheet.</source>
        <translation>Die Spalte %1 wurde nicht gelesen: Passwörter gehören nicht in eine Tabelle.</translation>
    </message>
    <message>
        <source>The column %1 is not used.</source>
        <translation>Die Spalte %1 wird nicht benutzt.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles were added.</source>
        <translation>
            <numerusform>%Ln Konsole wurde hinzugefügt.</numerusform>
            <numerusform>%Ln Konsolen wurden hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Say as whom to log on with --user.</source>
        <translation>Sagen Sie mit --user, als wer anzumelden ist.</translation>
    </message>
    <message>
        <source>The address is empty.</source>
        <translation>Die Adresse ist leer.</translation>
    </message>
    <message>
        <source>Nothing was added: %1.</source>
        <translation>Nichts wurde hinzugefügt: %1.</translation>
    </message>
    <message>
        <source>Nothing was added. %1: %2.</source>
        <extracomment>%1 an address, %2 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Nichts wurde hinzugefügt. %1: %2.</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>nicht bestätigt</translation>
    </message>
    <message>
        <source>%1 was added.</source>
        <translation>%1 wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>%1 was added, %2.</source>
        <translation>%1 wurde hinzugefügt, %2.</translation>
    </message>
    <message>
        <source>--listen takes a port, or an address and a port as 127.0.0.1:9750, not %1.</source>
        <translation>--listen verlangt einen Port oder eine Adresse mit Port wie 127.0.0.1:9750, nicht %1.</translation>
    </message>
    <message>
        <source>--listen takes an address in numbers, not %1.</source>
        <translation>--listen verlangt eine Adresse in Zahlen, nicht %1.</translation>
    </message>
    <message>
        <source>--listen takes no address that other machines reach, such as %1: what it serves is neither encrypted nor guarded. Put a server in front of it that is.</source>
        <translation>--listen nimmt keine Adresse, die andere Rechner erreichen, wie %1: Was es anbietet, ist weder verschlüsselt noch geschützt. Stellen Sie einen Server davor, der es ist.</translation>
    </message>
    <message>
        <source>Cannot listen on %1</source>
        <translation>Auf %1 lässt sich nicht lauschen</translation>
    </message>
    <message>
        <source>lodestar-cli --help lists all commands.</source>
        <translation>lodestar-cli --help listet alle Befehle auf.</translation>
    </message>
    <message>
        <source>total processors</source>
        <translation>Prozessoren gesamt</translation>
    </message>
    <message>
        <source>allocated processors</source>
        <translation>Prozessoren zugeteilt</translation>
    </message>
    <message>
        <source>used processors</source>
        <translation>Prozessoren genutzt</translation>
    </message>
    <message>
        <source>total memory, GB</source>
        <translation>Speicher gesamt, GB</translation>
    </message>
    <message>
        <source>allocated memory, GB</source>
        <translation>Speicher zugeteilt, GB</translation>
    </message>
    <message>
        <source>used memory, GB</source>
        <translation>Speicher genutzt, GB</translation>
    </message>
    <message>
        <source>No sample had values.</source>
        <translation>Kein Messpunkt hatte Werte.</translation>
    </message>
    <message>
        <source>No %1.</source>
        <translation>Keine %1.</translation>
    </message>
    <message>
        <source>No known %1.</source>
        <translation>Keine %1 bekannt.</translation>
    </message>
    <message>
        <source>No open %1.</source>
        <translation>Keine offenen %1.</translation>
    </message>
    <message>
        <source>No known open %1.</source>
        <translation>Keine offenen %1 bekannt.</translation>
    </message>
    <message>
        <source>No such %1.</source>
        <translation>Keine solchen %1.</translation>
    </message>
    <message>
        <source>No known such %1.</source>
        <translation>Keine solchen %1 bekannt.</translation>
    </message>
    <message>
        <source>--order takes sent, newest, status or code, not %1.</source>
        <translation>--order verlangt sent, newest, status oder code, nicht %1.</translation>
    </message>
    <message>
        <source>Nothing of that kind is called %1.</source>
        <translation>Nichts von dieser Art heißt %1.</translation>
    </message>
    <message>
        <source>There is no kind %1: consoles, systems, io-servers, partitions, events or groups.</source>
        <extracomment>The kinds are words of the command, which stay as they are</extracomment>
        <translation>Es gibt keine Art %1: consoles, systems, io-servers, partitions, events oder groups.</translation>
    </message>
    <message>
        <source>The output cannot be written</source>
        <translation>Die Ausgabe lässt sich nicht schreiben</translation>
    </message>
    <message>
        <source>The password cannot be read</source>
        <translation>Das Passwort lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>There is no password.</source>
        <translation>Es gibt kein Passwort.</translation>
    </message>
    <message>
        <source>There is no terminal to ask for the password. Give --password-fd N to read it from descriptor N.</source>
        <translation>Es gibt kein Terminal, um nach dem Passwort zu fragen. Mit --password-fd N wird es von Deskriptor N gelesen.</translation>
    </message>
    <message>
        <source>Lodestar is open, or another command is at work, in %1. Close it, or name another folder with --data.</source>
        <translation>Lodestar ist offen, oder ein anderer Befehl arbeitet, in %1. Schließen Sie es, oder nennen Sie mit --data einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Lodestar keeps nothing in a folder of another user: %1</source>
        <translation>Lodestar bewahrt nichts in einem Ordner eines anderen Benutzers auf: %1</translation>
    </message>
    <message>
        <source>Lodestar cannot lock its folder: Lodestar.lock in %1 is no file of yours.</source>
        <translation>Lodestar kann seinen Ordner nicht sperren: Lodestar.lock in %1 ist keine Datei von Ihnen.</translation>
    </message>
    <message>
        <source>The disk can only be read.</source>
        <translation>Der Datenträger lässt sich nur lesen.</translation>
    </message>
    <message>
        <source>The disk is full.</source>
        <translation>Der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>There is no home folder. Name a data folder with --data.</source>
        <translation>Es gibt keinen persönlichen Ordner. Nennen Sie mit --data einen Datenordner.</translation>
    </message>
    <message>
        <source>There is no data folder. %1</source>
        <translation>Es gibt keinen Datenordner. %1</translation>
    </message>
    <message>
        <source>A reset of Lodestar was cut short. Open Lodestar once to finish it.</source>
        <translation>Ein Zurücksetzen von Lodestar wurde unterbrochen. Öffnen Sie Lodestar einmal, um es abzuschließen.</translation>
    </message>
    <message>
        <source>The consoles in %1 cannot be read. %2</source>
        <extracomment>%1 a folder, %2 a sentence that tells why</extracomment>
        <translation>Die Konsolen in %1 lassen sich nicht lesen. %2</translation>
    </message>
    <message>
        <source>No console is called %1.</source>
        <translation>Keine Konsole heißt %1.</translation>
    </message>
    <message>
        <source>The history was damaged. It was set aside as %1, and a new one was begun. Earlier changes are missing.</source>
        <translation>Der Verlauf war beschädigt. Er wurde als %1 beiseitegelegt, und ein neuer wurde begonnen. Frühere Änderungen fehlen.</translation>
    </message>
    <message>
        <source>Nothing was stored. %1</source>
        <translation>Nichts wurde gespeichert. %1</translation>
    </message>
    <message>
        <source>No consoles yet. Add one with: %1</source>
        <translation>Noch keine Konsolen. So fügen Sie eine hinzu: %1</translation>
    </message>
    <message>
        <source>left out, its certificate changed</source>
        <translation>ausgelassen, ihr Zertifikat hat sich geändert</translation>
    </message>
    <message>
        <source>offline since %1</source>
        <translation>offline seit %1</translation>
    </message>
    <message>
        <source>Several systems are called %1. Name one by its identifier, or its console with --console.</source>
        <translation>Mehrere Systeme heißen %1. Nennen Sie eins nach seiner Kennung oder seine Konsole mit --console.</translation>
    </message>
    <message>
        <source>No system is called %1.</source>
        <translation>Kein System heißt %1.</translation>
    </message>
    <message>
        <source>--times takes a number from 1 on.</source>
        <translation>--times verlangt eine Zahl ab 1.</translation>
    </message>
    <message>
        <source>watch writes lines of text, or of JSON with --json.</source>
        <translation>watch schreibt Zeilen Text, mit --json Zeilen JSON.</translation>
    </message>
    <message>
        <source>There are no consoles to watch.</source>
        <translation>Es gibt keine Konsolen zu überwachen.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 %2 %3</source>
        <extracomment>%1 the day of a month, %2 the short name of the month, %3 a year</extracomment>
        <translation>%1 %2 %3</translation>
    </message>
    <message>
        <source>Row %1: %2.</source>
        <extracomment>%1 the number of a sheet&apos;s row, %2 what is wrong with it</extracomment>
        <translation>Zeile %1: %2.</translation>
    </message>
    <message>
        <source>The password is too long.</source>
        <translation>Das Passwort ist zu lang.</translation>
    </message>
</context>
<context>
    <name>ConnectionCard</name>
    <message>
        <source>Refresh This Console</source>
        <translation>Diese Konsole neu lesen</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
</context>
<context>
    <name>ConnectionScene</name>
    <message>
        <source>Copy all</source>
        <translation>Alles kopieren</translation>
    </message>
</context>
<context>
    <name>CorvelListDelegate</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Warn-LEDs</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
</context>
<context>
    <name>CorvelListScene</name>
    <message>
        <source>Feedback</source>
        <translation>Rückmeldung</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Konsole hinzufügen</translation>
    </message>
    <message>
        <source>Fleet Sheet</source>
        <translation>Konsolentabelle</translation>
    </message>
    <message>
        <source>No console of your own yet.</source>
        <translation>Noch keine eigene Konsole.</translation>
    </message>
</context>
<context>
    <name>DashboardScene</name>
    <message>
        <source>Corvel Overview</source>
        <translation>Corvel-Übersicht</translation>
    </message>
    <message>
        <source>Corvels Online</source>
        <translation>Corvels online</translation>
    </message>
    <message>
        <source>Attention LEDs</source>
        <translation>Warn-LEDs</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Serviceereignisse</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Verwaltete Systeme</translation>
    </message>
    <message>
        <source>No managed systems are known.</source>
        <translation>Keine verwalteten Systeme bekannt.</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>No logical partitions are known.</source>
        <translation>Keine logischen Partitionen bekannt.</translation>
    </message>
    <message>
        <source>No consoles yet.</source>
        <translation>Noch keine Konsolen.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvel hinzufügen</translation>
    </message>
</context>
<context>
    <name>DeltaCorvelScene</name>
    <message>
        <source>Leave out &quot;%1&quot;.</source>
        <translation>„%1“ weglassen.</translation>
    </message>
    <message>
        <source>Leave out &quot;/&quot; and what follows it.</source>
        <translation>„/“ und alles danach weglassen.</translation>
    </message>
    <message>
        <source>The address contains a blank.</source>
        <translation>Die Adresse enthält ein Leerzeichen.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Host name or address</source>
        <translation>Rechnername oder Adresse</translation>
    </message>
    <message>
        <source>User ID</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
</context>
<context>
    <name>DetailScene</name>
    <message>
        <source>Service report</source>
        <translation>Servicebericht</translation>
    </message>
</context>
<context>
    <name>EditMenuChoices</name>
    <message>
        <source>Edit text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>EmptyColumn</name>
    <message>
        <source>Choose what to look at.</source>
        <translation>Wählen Sie, was Sie ansehen möchten.</translation>
    </message>
</context>
<context>
    <name>ErrorWords</name>
    <message>
        <source>this is the name of a folder.</source>
        <translation>so heißt ein Ordner.</translation>
    </message>
    <message>
        <source>this is the name of a device.</source>
        <translation>so heißt ein Gerät.</translation>
    </message>
    <message>
        <source>the folder does not exist.</source>
        <translation>den Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>the disk is full.</source>
        <translation>der Datenträger ist voll.</translation>
    </message>
    <message>
        <source>you may not write there.</source>
        <translation>Sie dürfen dort nicht schreiben.</translation>
    </message>
    <message>
        <source>the file is too large for the disk.</source>
        <translation>die Datei ist zu groß für den Datenträger.</translation>
    </message>
    <message>
        <source>the name is too long.</source>
        <translation>der Name ist zu lang.</translation>
    </message>
    <message>
        <source>this place is not on this device.</source>
        <translation>dieser Ort ist nicht auf diesem Gerät.</translation>
    </message>
    <message>
        <source>this system shows no dialogue for files.</source>
        <translation>dieses System zeigt keinen Dateidialog.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Diese Datei lässt sich nicht lesen.</translation>
    </message>
    <message>
        <source>This file is too large.</source>
        <translation>Diese Datei ist zu groß.</translation>
    </message>
    <message>
        <source>This system shows no dialogue for files.</source>
        <translation>Dieses System zeigt keinen Dateidialog.</translation>
    </message>
    <message>
        <source>The request was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The address is not valid.</source>
        <translation>Die Adresse ist ungültig.</translation>
    </message>
    <message>
        <source>No answer came in time. Check the network.</source>
        <translation>Es kam rechtzeitig keine Antwort. Prüfen Sie das Netz.</translation>
    </message>
    <message>
        <source>The name has no address. Check the spelling.</source>
        <translation>Zu dem Namen gibt es keine Adresse. Prüfen Sie die Schreibweise.</translation>
    </message>
    <message>
        <source>This address cannot be reached.</source>
        <translation>Diese Adresse ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>The connection broke off. Try again.</source>
        <translation>Die Verbindung brach ab. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The answer was not understood.</source>
        <translation>Die Antwort war nicht verständlich.</translation>
    </message>
    <message>
        <source>The answer is larger than Lodestar takes.</source>
        <translation>Die Antwort ist größer, als Lodestar annimmt.</translation>
    </message>
    <message>
        <source>No secure connection can be made.</source>
        <translation>Es kommt keine sichere Verbindung zustande.</translation>
    </message>
    <message>
        <source>The certificate is not trusted.</source>
        <translation>Dem Zertifikat wird nicht vertraut.</translation>
    </message>
    <message>
        <source>The request failed.</source>
        <translation>Die Anfrage schlug fehl.</translation>
    </message>
    <message>
        <source>The console did not accept user or password.</source>
        <translation>Die Konsole nahm Benutzer oder Passwort nicht an.</translation>
    </message>
    <message>
        <source>The console has an error. Try again.</source>
        <translation>Die Konsole hat einen Fehler. Versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The address does not answer as a console.</source>
        <translation>Unter der Adresse antwortet keine Konsole.</translation>
    </message>
</context>
<context>
    <name>EventBars</name>
    <message>
        <source>New Events a Day</source>
        <translation>Neue Ereignisse pro Tag</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tage</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>EventOrderScene</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Call-Home</translation>
    </message>
</context>
<context>
    <name>FeedListScene</name>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
</context>
<context>
    <name>FeedListViewController</name>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>Partitions could not be loaded. Refresh to try again.</source>
        <translation>Die Partitionen ließen sich nicht laden. Aktualisieren, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>There are no partitions here.</source>
        <translation>Hier gibt es keine Partitionen.</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Verwaltete Systeme</translation>
    </message>
    <message>
        <source>Managed systems could not be loaded. Refresh to try again.</source>
        <translation>Die verwalteten Systeme ließen sich nicht laden. Aktualisieren, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>This console manages no systems.</source>
        <translation>Diese Konsole verwaltet keine Systeme.</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>Resource groups could not be loaded. Refresh to try again.</source>
        <translation>Die Ressourcengruppen ließen sich nicht laden. Aktualisieren, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>This console has no resource groups.</source>
        <translation>Diese Konsole hat keine Ressourcengruppen.</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Serviceereignisse</translation>
    </message>
    <message>
        <source>Serviceable events could not be loaded. Refresh to try again.</source>
        <translation>Die Serviceereignisse ließen sich nicht laden. Aktualisieren, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>This console has no serviceable events.</source>
        <translation>Diese Konsole hat keine Serviceereignisse.</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Virtuelle E/A-Server</translation>
    </message>
    <message>
        <source>Virtual servers could not be loaded. Refresh to try again.</source>
        <translation>Die virtuellen Server ließen sich nicht laden. Aktualisieren, um es noch einmal zu versuchen.</translation>
    </message>
    <message>
        <source>Nothing in sight</source>
        <translation>Nichts in Sicht</translation>
    </message>
    <message>
        <source>There are no virtual servers here.</source>
        <translation>Hier gibt es keine virtuellen Server.</translation>
    </message>
</context>
<context>
    <name>FeedbackLayer</name>
    <message>
        <source>Feedback</source>
        <translation>Rückmeldung</translation>
    </message>
</context>
<context>
    <name>FeedbackScene</name>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Picture of the screen, to draw on</source>
        <translation>Bild des Bildschirms zum Zeichnen</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Cover</source>
        <translation>Abdecken</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>What happened?</source>
        <translation>Was ist geschehen?</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it.</source>
        <translation>Adressen werden abgedeckt, bevor das Bild gezeigt wird. Passwörter sind nie dabei.</translation>
    </message>
    <message>
        <source>Addresses are covered before the picture is shown. Passwords are never part of it. The report stays on this device.</source>
        <translation>Adressen werden abgedeckt, bevor das Bild gezeigt wird. Passwörter sind nie dabei. Der Bericht bleibt auf diesem Gerät.</translation>
    </message>
    <message>
        <source>What is sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Was gespeichert wird</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
</context>
<context>
    <name>FilePicker</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FindButton</name>
    <message>
        <source>Find anywhere</source>
        <translation>Überall suchen</translation>
    </message>
</context>
<context>
    <name>FindScene</name>
    <message>
        <source>Find on all consoles</source>
        <translation>Überall suchen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>No consoles yet.</source>
        <translation>Noch keine Konsolen.</translation>
    </message>
    <message>
        <source>Look at the Demo First</source>
        <translation>Erst die Demo ansehen</translation>
    </message>
</context>
<context>
    <name>FirstSteps</name>
    <message>
        <source>Give the address, user and password of one. Lodestar only reads; nothing on a console is ever changed.</source>
        <translation>Geben Sie Adresse, Benutzer und Passwort einer Konsole an. Lodestar liest nur; auf einer Konsole wird nie etwas geändert.</translation>
    </message>
    <message>
        <source>Add Corvel</source>
        <translation>Corvel hinzufügen</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Konsolentabelle einlesen</translation>
    </message>
</context>
<context>
    <name>FleetAgainScene</name>
    <message>
        <source>Verify</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>A field that stays empty keeps its password.</source>
        <translation>Ein leeres Feld behält sein Passwort.</translation>
    </message>
</context>
<context>
    <name>FleetChooseScene</name>
    <message>
        <source>In this sheet</source>
        <translation>In dieser Tabelle</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Registered already, left alone</source>
        <translation>Schon eingetragen, bleibt unverändert</translation>
    </message>
    <message>
        <source>Cannot be used</source>
        <translation>Nicht verwendbar</translation>
    </message>
    <message>
        <source>Passwords, one a user</source>
        <translation>Passwörter</translation>
    </message>
    <message>
        <source>Passwords are never read from a sheet nor written to one.</source>
        <translation>Passwörter werden nie aus einer Tabelle gelesen oder in eine geschrieben.</translation>
    </message>
    <message>
        <source>Nothing is added before all of them were tried.</source>
        <translation>Erst wenn alle geprüft sind, wird etwas hinzugefügt.</translation>
    </message>
</context>
<context>
    <name>FleetEventsBar</name>
    <message>
        <source>Order</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>FleetEventsContent</name>
    <message>
        <source>Search results</source>
        <translation>Suchergebnisse</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>FleetEventsHeader</name>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
</context>
<context>
    <name>FleetPasswordCard</name>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Show More Users</source>
        <translation>Mehr Benutzer zeigen</translation>
    </message>
</context>
<context>
    <name>FleetSheetScene</name>
    <message>
        <source>Import Consoles from a Sheet</source>
        <translation>Konsolen aus einer Tabelle einlesen</translation>
    </message>
    <message>
        <source>A sheet is a CSV file with a first line, for example:</source>
        <translation>Eine Tabelle ist eine CSV-Datei mit einer Kopfzeile, zum Beispiel:</translation>
    </message>
    <message>
        <source>Passwords are asked once a user. They are never read from a sheet nor written to one.</source>
        <translation>Nach Passwörtern wird je Benutzer einmal gefragt. Sie werden nie aus einer Tabelle gelesen oder in eine geschrieben.</translation>
    </message>
    <message>
        <source>Look at the Demo</source>
        <translation>Demo ansehen</translation>
    </message>
    <message>
        <source>A console that is part of Lodestar. It needs no network.</source>
        <translation>Eine Konsole, die zu Lodestar gehört. Sie braucht kein Netz.</translation>
    </message>
</context>
<context>
    <name>FleetVerifyHeader</name>
    <message>
        <source>Verified</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>Nicht bestätigt</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
</context>
<context>
    <name>FleetVerifyScene</name>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>FoldedListScene</name>
    <message>
        <source>Nothing left to show</source>
        <translation>Nichts mehr zu zeigen</translation>
    </message>
</context>
<context>
    <name>IntroView</name>
    <message>
        <source>Every console, one list</source>
        <translation>Alle Konsolen in einer Liste</translation>
    </message>
    <message>
        <source>Health, attention LEDs and events of your whole fleet, refreshed with one pull.</source>
        <translation>Zustand, Warn-LEDs und Ereignisse aller Konsolen, mit einem Zug aktualisiert.</translation>
    </message>
    <message>
        <source>The sum of it all</source>
        <translation>Alles in Summe</translation>
    </message>
    <message>
        <source>The dashboard adds up managed systems and partitions by their state.</source>
        <translation>Das Dashboard zählt verwaltete Systeme und Partitionen nach ihrem Zustand.</translation>
    </message>
    <message>
        <source>Every managed system</source>
        <translation>Jedes verwaltete System</translation>
    </message>
    <message>
        <source>Find a system by name. Badges tell errors and lit attention LEDs.</source>
        <translation>Systeme nach Namen finden. Marken zeigen Fehler und leuchtende Warn-LEDs.</translation>
    </message>
    <message>
        <source>Down to the partition</source>
        <translation>Bis zur Partition</translation>
    </message>
    <message>
        <source>Partitions and virtual I/O servers stand under the system that runs them.</source>
        <translation>Partitionen und virtuelle E/A-Server stehen unter ihrem System.</translation>
    </message>
    <message>
        <source>Load over time</source>
        <translation>Last im Lauf der Zeit</translation>
    </message>
    <message>
        <source>Processors and memory of a system, total, allocated and used, as lines.</source>
        <translation>Prozessoren und Speicher eines Systems als Linien: gesamt, zugeteilt, genutzt.</translation>
    </message>
    <message>
        <source>Behind a passcode</source>
        <translation>Durch Code geschützt</translation>
    </message>
    <message>
        <source>Lock Lodestar if you like. It reads only and changes nothing on a console.</source>
        <translation>Sperren Sie Lodestar, wenn Sie möchten. Es liest nur und ändert nichts auf einer Konsole.</translation>
    </message>
</context>
<context>
    <name>KeySheetScene</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Find a command</source>
        <translation>Befehl suchen</translation>
    </message>
</context>
<context>
    <name>KeyTable</name>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Save list as CSV</source>
        <translation>Liste als CSV speichern</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Punkte als CSV speichern</translation>
    </message>
    <message>
        <source>Copy value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Keyboard help</source>
        <translation>Tastaturhilfe</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next or previous control</source>
        <translation>Nächstes oder voriges Element</translation>
    </message>
    <message>
        <source>Next or previous row</source>
        <translation>Nächste oder vorige Zeile</translation>
    </message>
    <message>
        <source>A page up or down</source>
        <translation>Eine Seite auf oder ab</translation>
    </message>
    <message>
        <source>First or last row</source>
        <translation>Erste oder letzte Zeile</translation>
    </message>
    <message>
        <source>Open the row</source>
        <translation>Zeile öffnen</translation>
    </message>
    <message>
        <source>Menu of the row</source>
        <translation>Menü der Zeile</translation>
    </message>
    <message>
        <source>Buttons of the row</source>
        <translation>Knöpfe der Zeile</translation>
    </message>
    <message>
        <source>Step along the chart</source>
        <translation>Im Diagramm weitergehen</translation>
    </message>
    <message>
        <source>Enlarge or shrink</source>
        <translation>Größer oder kleiner</translation>
    </message>
    <message>
        <source>The whole chart</source>
        <translation>Das ganze Diagramm</translation>
    </message>
    <message>
        <source>Add console</source>
        <translation>Konsole hinzufügen</translation>
    </message>
    <message>
        <source>Find anywhere</source>
        <translation>Überall suchen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Rückmeldung</translation>
    </message>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Auffälliges</translation>
    </message>
    <message>
        <source>The other column</source>
        <translation>Die andere Spalte</translation>
    </message>
    <message>
        <source>First or last value</source>
        <translation>Erster oder letzter Wert</translation>
    </message>
    <message>
        <source>Move the enlarged chart</source>
        <translation>Das vergrößerte Diagramm verschieben</translation>
    </message>
</context>
<context>
    <name>KeychainWait</name>
    <message>
        <source>Waiting for the system&apos;s keychain...</source>
        <translation>Warten auf den Schlüsselbund des Systems...</translation>
    </message>
</context>
<context>
    <name>LargeChartScene</name>
    <message>
        <source>Performance Monitoring</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Prozessoren</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Bars</source>
        <translation>Balken</translation>
    </message>
    <message>
        <source>Allocated as bars</source>
        <translation>Zugeteilt als Balken</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle zeigen</translation>
    </message>
</context>
<context>
    <name>ListShareButton</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Liste als CSV speichern</translation>
    </message>
</context>
<context>
    <name>LoginScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
    <message>
        <source>Log In</source>
        <translation>Anmelden</translation>
    </message>
    <message>
        <source>Reset Passcode and Erase All Data</source>
        <translation>Code zurücksetzen und alle Daten löschen</translation>
    </message>
</context>
<context>
    <name>MCScene</name>
    <message>
        <source>This console has told nothing of itself.</source>
        <translation>Diese Konsole hat nichts über sich mitgeteilt.</translation>
    </message>
</context>
<context>
    <name>MainStoryboard</name>
    <message>
        <source>Corvels</source>
        <translation>Corvels</translation>
    </message>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Auffälliges</translation>
    </message>
</context>
<context>
    <name>NavigationBar</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>PCMScene</name>
    <message>
        <source>units</source>
        <translation>Einh.</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Large Chart</source>
        <translation>Großes Diagramm</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Prozessoren</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Metrics</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Zugeteilt</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Genutzt</translation>
    </message>
</context>
<context>
    <name>PageControl</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>PagedIntroView</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
</context>
<context>
    <name>Passcode</name>
    <message>
        <source>The system&apos;s keychain is locked</source>
        <translation>Der Schlüsselbund des Systems ist gesperrt</translation>
    </message>
    <message>
        <source>No keychain is running on this system</source>
        <translation>Auf diesem System läuft kein Schlüsselbund</translation>
    </message>
    <message>
        <source>The system&apos;s keychain does not answer</source>
        <translation>Der Schlüsselbund des Systems antwortet nicht</translation>
    </message>
    <message>
        <source>The system&apos;s keychain cannot keep this text</source>
        <translation>Der Schlüsselbund des Systems kann diesen Text nicht aufbewahren</translation>
    </message>
    <message>
        <source>The system&apos;s keychain reported an error</source>
        <translation>Der Schlüsselbund des Systems meldet einen Fehler</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain was locked.</source>
        <translation>Nach dem Code wird nicht mehr gefragt: Der Schlüsselbund des Systems war gesperrt.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: no keychain was running.</source>
        <translation>Nach dem Code wird nicht mehr gefragt: Es lief kein Schlüsselbund.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain did not answer.</source>
        <translation>Nach dem Code wird nicht mehr gefragt: Der Schlüsselbund des Systems antwortete nicht.</translation>
    </message>
    <message>
        <source>The passcode is not asked for any more: the system&apos;s keychain could not be read.</source>
        <translation>Nach dem Code wird nicht mehr gefragt: Der Schlüsselbund des Systems ließ sich nicht lesen.</translation>
    </message>
</context>
<context>
    <name>PasswordCreationScene</name>
    <message>
        <source>Old passcode</source>
        <translation>Alter Code</translation>
    </message>
    <message>
        <source>New passcode</source>
        <translation>Neuer Code</translation>
    </message>
    <message>
        <source>Verify passcode</source>
        <translation>Code bestätigen</translation>
    </message>
</context>
<context>
    <name>PerformanceSummary</name>
    <message>
        <source>Lowest</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Highest</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Zuletzt</translation>
    </message>
</context>
<context>
    <name>PrivacyCoverScene</name>
    <message>
        <source>Lodestar</source>
        <translation>Lodestar</translation>
    </message>
</context>
<context>
    <name>PullIndicatorMark</name>
    <message>
        <source>Refreshing</source>
        <translation>Wird aktualisiert</translation>
    </message>
    <message>
        <source>Pull to refresh</source>
        <translation>Zum Aktualisieren ziehen</translation>
    </message>
</context>
<context>
    <name>PullSearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>RGListDelegate</name>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
</context>
<context>
    <name>ReportListScene</name>
    <message>
        <source>No reports on this device.</source>
        <translation>Keine Berichte auf diesem Gerät.</translation>
    </message>
</context>
<context>
    <name>ReportScene</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Picture of the screen</source>
        <translation>Bild des Bildschirms</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Sending the report...</source>
        <translation>Der Bericht wird gesendet...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Waiting for the answer...</source>
        <translation>Warten auf die Antwort...</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Report Sent</source>
        <translation>Bericht gesendet</translation>
    </message>
    <message>
        <source>Thank you. A copy is in the list of reports.</source>
        <translation>Danke. Eine Kopie steht in der Liste der Berichte.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be sent</source>
        <translation>Der Bericht ließ sich nicht senden</translation>
    </message>
    <message>
        <source>%1
It is kept in the list of reports.</source>
        <translation>%1
Er bleibt in der Liste der Berichte.</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Noch einmal</translation>
    </message>
    <message>
        <source>Crash</source>
        <translation>Absturz</translation>
    </message>
    <message>
        <source>Feedback</source>
        <translation>Rückmeldung</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>SecretSwitch</name>
    <message>
        <source>Hide password</source>
        <translation>Passwort verbergen</translation>
    </message>
    <message>
        <source>Show password</source>
        <translation>Passwort zeigen</translation>
    </message>
</context>
<context>
    <name>ServiceReportScene</name>
    <message>
        <source>Form of the report</source>
        <translation>Form des Berichts</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Markdown</source>
        <translation>Markdown</translation>
    </message>
    <message>
        <source>Leave Out Addresses</source>
        <translation>Adressen weglassen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Als Datei speichern</translation>
    </message>
</context>
<context>
    <name>SettingsScene</name>
    <message>
        <source>Require Passcode</source>
        <translation>Code verlangen</translation>
    </message>
    <message>
        <source>Change Passcode</source>
        <translation>Code ändern</translation>
    </message>
    <message>
        <source>Intro Tour</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Open Source Licenses</source>
        <translation>Open-Source-Lizenzen</translation>
    </message>
    <message>
        <source>Ornis License</source>
        <translation>Ornis-Lizenz</translation>
    </message>
</context>
<context>
    <name>SheetContent</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Spinner</name>
    <message>
        <source>Loading</source>
        <translation>Wird geladen</translation>
    </message>
</context>
<context>
    <name>StateBars</name>
    <message>
        <source>Partitions by State</source>
        <translation>Partitionen nach Zustand</translation>
    </message>
    <message>
        <source>and since yesterday</source>
        <translation>und seit gestern</translation>
    </message>
</context>
<context>
    <name>SwipeButtons</name>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
</context>
<context>
    <name>TabBar</name>
    <message>
        <source>Screens</source>
        <translation>Bereiche</translation>
    </message>
</context>
<context>
    <name>WatchConsoleDelegate</name>
    <message>
        <source>watched</source>
        <translation>überwacht</translation>
    </message>
    <message>
        <source>not watched</source>
        <translation>nicht überwacht</translation>
    </message>
</context>
<context>
    <name>WatchScene</name>
    <message>
        <source>Watch While Lodestar Runs</source>
        <translation>Überwachen, solange Lodestar läuft</translation>
    </message>
    <message>
        <source>Reads every console again by itself and tells you what changed. It stops when Lodestar is closed.</source>
        <translation>Liest alle Konsolen von selbst neu und meldet, was sich geändert hat. Endet, wenn Lodestar geschlossen wird.</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>Tell me</source>
        <translation>Melden</translation>
    </message>
    <message>
        <source>When Something Gets Worse</source>
        <translation>Wenn etwas schlechter wird</translation>
    </message>
    <message>
        <source>When It Gets Better Again</source>
        <translation>Wenn es wieder besser wird</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Neue Ereignisse</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Konsolen</translation>
    </message>
    <message>
        <source>Quiet Hours</source>
        <translation>Ruhezeit</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Send a Test Message</source>
        <translation>Probemeldung senden</translation>
    </message>
    <message>
        <source>At most one message a refresh. Names, addresses and texts stay out of it while a passcode is required.</source>
        <translation>Höchstens eine Meldung je Aktualisierung. Namen, Adressen und Texte bleiben draußen, solange ein Code verlangt wird.</translation>
    </message>
</context>
<context>
    <name>WatchTimeRow</name>
    <message>
        <source>Left and right change the time.</source>
        <translation>Links und rechts ändern die Zeit.</translation>
    </message>
    <message>
        <source>%1, earlier</source>
        <translation>%1, früher</translation>
    </message>
    <message>
        <source>%1, later</source>
        <translation>%1, später</translation>
    </message>
</context>
<context>
    <name>lodestar::AgeText</name>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1 a day as in &quot;yesterday&quot; or &quot;Mon&quot;, %2 a time of day</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>today, %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>heute, %1</translation>
    </message>
    <message>
        <source>since %1</source>
        <extracomment>%1 as in &quot;09:41&quot;, &quot;yesterday 21:40&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>seit %1</translation>
    </message>
    <message>
        <source>at least since %1</source>
        <translation>mindestens seit %1</translation>
    </message>
    <message>
        <source>read %1</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>gelesen %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln min ago</source>
        <translation>
            <numerusform>vor %Ln&#xa0;min</numerusform>
            <numerusform>vor %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>read %Ln h ago</source>
        <translation>
            <numerusform>vor %Ln&#xa0;h gelesen</numerusform>
            <numerusform>vor %Ln&#xa0;h gelesen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionFilterController</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message numerus="yes">
        <source>All %Ln consoles</source>
        <translation>
            <numerusform>%Ln Konsole, alle</numerusform>
            <numerusform>Alle %Ln Konsolen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionNowController</name>
    <message>
        <source>Nothing needs attention</source>
        <translation>Nichts erfordert Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Nichts Bekanntes erfordert Aufmerksamkeit</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <extracomment>%1 a number of rows</extracomment>
        <translation>Alle %1 zeigen</translation>
    </message>
</context>
<context>
    <name>lodestar::AttentionViewController</name>
    <message>
        <source>99+</source>
        <extracomment>%1 the name of a tab</extracomment>
        <translation>99+</translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln things</source>
        <translation>
            <numerusform>%1, %Ln Punkt</numerusform>
            <numerusform>%1, %Ln Punkte</numerusform>
        </translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Auffälliges</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: the tab &quot;Attention&quot; and what of it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::BarButtonOutlet</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>lodestar::ChangeText</name>
    <message>
        <source>#%1 opened</source>
        <translation>#%1 eröffnet</translation>
    </message>
    <message>
        <source>#%1 gone</source>
        <translation>#%1 verschwunden</translation>
    </message>
    <message>
        <source>#%1</source>
        <translation>#%1</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED an</translation>
    </message>
    <message>
        <source>LED off</source>
        <translation>LED aus</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Online again after %1</source>
        <translation>Wieder online nach %1</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <translation>%1 nicht gelesen</translation>
    </message>
    <message>
        <source>%1 read again</source>
        <translation>%1 wieder gelesen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Gone</source>
        <translation>Verschwunden</translation>
    </message>
    <message>
        <source>Certificate changed</source>
        <translation>Zertifikat geändert</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <extracomment>A state before and after.</extracomment>
        <translation>von %1 zu %2</translation>
    </message>
    <message>
        <source>worse</source>
        <translation>schlechter</translation>
    </message>
    <message>
        <source>better</source>
        <translation>besser</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>Hours and minutes.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln Konsole</numerusform>
            <numerusform>%Ln Konsolen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events opened</source>
        <translation>
            <numerusform>%Ln Ereignis eröffnet</numerusform>
            <numerusform>%Ln Ereignisse eröffnet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events gone</source>
        <translation>
            <numerusform>%Ln Ereignis verschwunden</numerusform>
            <numerusform>%Ln Ereignisse verschwunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln System</numerusform>
            <numerusform>%Ln Systeme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln E/A-Server</numerusform>
            <numerusform>%Ln E/A-Server</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln Gruppe</numerusform>
            <numerusform>%Ln Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln Ereignis</numerusform>
            <numerusform>%Ln Ereignisse</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln Partition</numerusform>
            <numerusform>%Ln Partitionen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln days</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ChangesViewController</name>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>Nichts mehr zu zeigen</translation>
    </message>
    <message>
        <source>Nothing changed in 30 days.</source>
        <translation>In 30 Tagen hat sich nichts geändert.</translation>
    </message>
    <message>
        <source>Changes show after the second reading.</source>
        <translation>Änderungen zeigen sich nach dem zweiten Lesen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more changes are not shown.</source>
        <translation>
            <numerusform>%Ln weitere Änderung wird nicht gezeigt.</numerusform>
            <numerusform>%Ln weitere Änderungen werden nicht gezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Older changes were left out</source>
        <translation>Ältere Änderungen sind weggelassen</translation>
    </message>
    <message>
        <source>What changed before could not be read. The damaged file was set aside.</source>
        <translation>Frühere Änderungen ließen sich nicht lesen. Die beschädigte Datei wurde beiseitegelegt.</translation>
    </message>
</context>
<context>
    <name>lodestar::Clipboard</name>
    <message>
        <source>Could not be copied: the clipboard is in use by another program.</source>
        <translation>Konnte nicht kopiert werden: Ein anderes Programm benutzt die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copied %1</source>
        <extracomment>%1 what was copied</extracomment>
        <translation>%1 kopiert</translation>
    </message>
</context>
<context>
    <name>lodestar::Commands</name>
    <message>
        <source>Watch</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>Fleet sheet</source>
        <translation>Konsolentabelle</translation>
    </message>
    <message>
        <source>Intro tour</source>
        <translation>Rundgang</translation>
    </message>
    <message>
        <source>Bring back the demo</source>
        <translation>Demo zurückholen</translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionContent</name>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 dates</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1, ended %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, abgelaufen am %2</translation>
    </message>
    <message>
        <source>%1, begins %2</source>
        <extracomment>%1 as in &quot;1 Sep 2025 to 31 Aug 2027&quot;, %2 a date</extracomment>
        <translation>%1, gilt ab %2</translation>
    </message>
    <message>
        <source>changed %1</source>
        <extracomment>%1 as in &quot;today, 02:58&quot; or &quot;3 Mar&quot;</extracomment>
        <translation>geändert %1</translation>
    </message>
    <message>
        <source>seen for the first time</source>
        <translation>zum ersten Mal gesehen</translation>
    </message>
    <message>
        <source>unchanged since %1</source>
        <translation>unverändert seit %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
    <message>
        <source>The new one is neither vouched for by this device’s authorities nor the one shown at the session check.</source>
        <translation>Für das neue bürgt keine Zertifizierungsstelle dieses Geräts, und es ist nicht das der Sitzungsprüfung.</translation>
    </message>
    <message>
        <source>Vouched for by this device’s authorities.</source>
        <translation>Eine Zertifizierungsstelle dieses Geräts bürgt dafür.</translation>
    </message>
    <message>
        <source>Not vouched for by this device’s authorities. Consoles sign their own, so Lodestar takes what it is shown and says here when it changes.</source>
        <translation>Keine Zertifizierungsstelle dieses Geräts bürgt dafür. Konsolen signieren ihr eigenes; deshalb nimmt Lodestar an, was ihm gezeigt wird, und sagt hier, wenn es sich ändert.</translation>
    </message>
    <message>
        <source>Certificate</source>
        <translation>Zertifikat</translation>
    </message>
    <message>
        <source>At the logon, new</source>
        <translation>Bei der Anmeldung, neu</translation>
    </message>
    <message>
        <source>At the session check, known since %1</source>
        <translation>Bei der Sitzungsprüfung, bekannt seit %1</translation>
    </message>
    <message>
        <source>At the session check</source>
        <translation>Bei der Sitzungsprüfung</translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Inhaber</translation>
    </message>
    <message>
        <source>Issuer</source>
        <translation>Aussteller</translation>
    </message>
    <message>
        <source>itself</source>
        <translation>selbst ausgestellt</translation>
    </message>
    <message>
        <source>Valid</source>
        <translation>Gültig</translation>
    </message>
    <message>
        <source>SHA-256 fingerprint</source>
        <translation>SHA-256-Fingerabdruck</translation>
    </message>
    <message>
        <source>Compared with last time</source>
        <translation>Verglichen mit letztem Mal</translation>
    </message>
    <message>
        <source>Trust</source>
        <translation>Vertrauen</translation>
    </message>
    <message>
        <source>The rest was read %1.</source>
        <extracomment>%1 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Der Rest wurde %1 gelesen.</translation>
    </message>
    <message>
        <source>The rest was read just now.</source>
        <translation>Der Rest wurde gerade gelesen.</translation>
    </message>
    <message>
        <source>Nothing of it could be read.</source>
        <translation>Nichts davon ließ sich lesen.</translation>
    </message>
    <message>
        <source>%1 could not be read.</source>
        <extracomment>%1 names of feeds, as in &quot;Partitions and resource groups&quot;</extracomment>
        <translation>%1 ließen sich nicht lesen.</translation>
    </message>
    <message>
        <source>Not tried yet</source>
        <translation>Noch nicht versucht</translation>
    </message>
    <message>
        <source>Offline since %1</source>
        <extracomment>%1 as in &quot;02:58&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Offline seit %1</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>Online</translation>
    </message>
    <message>
        <source>Everything was read %1, in %2.</source>
        <extracomment>%1 as in &quot;2 min ago&quot; or &quot;at 09:41&quot;, %2 a time in seconds</extracomment>
        <translation>Alles wurde %1 gelesen, in %2.</translation>
    </message>
    <message>
        <source>What to try</source>
        <translation>Was Sie tun können</translation>
    </message>
    <message>
        <source>Last success</source>
        <translation>Letzter Erfolg</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>%1 as in &quot;today, 02:43&quot;, %2 a time in seconds</extracomment>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>Read in full</source>
        <translation>Vollständig gelesen</translation>
    </message>
    <message>
        <source>Version then</source>
        <translation>Damalige Version</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>connect</source>
        <translation>verbinden</translation>
    </message>
    <message>
        <source>TLS</source>
        <translation>TLS</translation>
    </message>
    <message>
        <source>Session check</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Logon</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>logon</source>
        <translation>Anmeldung</translation>
    </message>
    <message>
        <source>Six feeds</source>
        <translation>Sechs Feeds</translation>
    </message>
    <message>
        <source>feeds</source>
        <translation>Feeds</translation>
    </message>
    <message>
        <source>certificate as before</source>
        <translation>Zertifikat wie zuvor</translation>
    </message>
    <message>
        <source>first contact</source>
        <translation>erster Kontakt</translation>
    </message>
    <message>
        <source>certificate changed</source>
        <translation>Zertifikat geändert</translation>
    </message>
    <message>
        <source>address given</source>
        <translation>Adresse angegeben</translation>
    </message>
    <message>
        <source>port 12443</source>
        <translation>Port 12443</translation>
    </message>
    <message>
        <source>%1, key accepted</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, Schlüssel angenommen</translation>
    </message>
    <message>
        <source>%1, key ended</source>
        <translation>%1, Schlüssel abgelaufen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <extracomment>%1 a reason, %2 a number such as -1202 or 401</extracomment>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Not the certificate of the session check</source>
        <translation>Nicht das Zertifikat der Sitzungsprüfung</translation>
    </message>
    <message>
        <source>no key yet</source>
        <translation>noch kein Schlüssel</translation>
    </message>
    <message>
        <source>not needed</source>
        <translation>nicht nötig</translation>
    </message>
    <message>
        <source>not reached</source>
        <translation>nicht erreicht</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Management-Konsole</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Verwaltete Systeme</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Virtuelle E/A-Server</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Serviceereignisse</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, the console failed to answer</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>%1, die Konsole konnte nicht antworten</translation>
    </message>
    <message>
        <source>%1 were last read %2</source>
        <extracomment>%1 the name of a feed, %2 as in &quot;at 09:26&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1 zuletzt gelesen %2</translation>
    </message>
    <message>
        <source>%1, %2 %3</source>
        <extracomment>%1 the same for another feed, which %2 and %3 add</extracomment>
        <translation>%1, %2 %3</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1 a sentence that lacks its end</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1&#xa0;ms</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>at %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>um %1</translation>
    </message>
    <message>
        <source>Last attempt</source>
        <translation>Letzter Versuch</translation>
    </message>
    <message>
        <source>Feeds</source>
        <translation>Feeds</translation>
    </message>
    <message>
        <source>%1 of 6</source>
        <extracomment>%1 how many of the six feeds were read</extracomment>
        <translation>%1 von 6</translation>
    </message>
    <message numerus="yes">
        <source>The rest is %Ln min old.</source>
        <translation>
            <numerusform>Der Rest ist %Ln&#xa0;min alt.</numerusform>
            <numerusform>Der Rest ist %Ln&#xa0;min alt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Online, %Ln of 6 feeds missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>Online, %Ln von 6 Feeds fehlt</numerusform>
            <numerusform>Online, %Ln von 6 Feeds fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Bytes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>no answer within %Ln s</source>
        <translation>
            <numerusform>keine Antwort binnen %Ln&#xa0;s</numerusform>
            <numerusform>keine Antwort binnen %Ln&#xa0;s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ConnectionViewController</name>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListCell</name>
    <message>
        <source>N/A</source>
        <translation>k.&#xa0;A.</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>%1, updating</source>
        <extracomment>A console in the list, read aloud while it is being fetched: %1 its name</extracomment>
        <translation>%1, wird gelesen</translation>
    </message>
    <message>
        <source>%1, %2, attention %3, events %4</source>
        <extracomment>A console in the list, read aloud: %1 name, %2 status word, %3 and %4 counts</extracomment>
        <translation>%1, %2, Warn-LEDs %3, Ereignisse %4</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelListViewController</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>My Corvels</source>
        <translation>Meine Corvels</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelMenu</name>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Attention</source>
        <translation>Auffälliges</translation>
    </message>
    <message>
        <source>Copy Address</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lodestar::CorvelOverviewTableViewController</name>
    <message>
        <source>not loaded</source>
        <translation>nicht geladen</translation>
    </message>
    <message>
        <source>Managed Systems</source>
        <translation>Verwaltete Systeme</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Virtuelle E/A-Server</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Serviceereignisse</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Management-Konsole</translation>
    </message>
</context>
<context>
    <name>lodestar::DBusMessageService</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardBars</name>
    <message>
        <source>%1 since yesterday</source>
        <translation>%1 seit gestern</translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardMarks</name>
    <message>
        <source>missing from %1 of %2</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>fehlt bei %1 von %2</translation>
    </message>
    <message>
        <source>%1 of %2 answered in full</source>
        <extracomment>%1 of %2 consoles</extracomment>
        <translation>%1 von %2 antworteten vollständig</translation>
    </message>
    <message>
        <source>Read %1.</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>Gelesen %1.</translation>
    </message>
    <message>
        <source>Read %1 to %2.</source>
        <translation>Gelesen %1 bis %2.</translation>
    </message>
    <message numerus="yes">
        <source>Next in %Ln min.</source>
        <translation>
            <numerusform>Nächstes Mal in %Ln&#xa0;min.</numerusform>
            <numerusform>Nächstes Mal in %Ln&#xa0;min.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DashboardTableViewController</name>
    <message>
        <source>Dashboard</source>
        <translation>Dashboard</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Warten auf %1</translation>
    </message>
    <message numerus="yes">
        <source>Waiting for %1 of %Ln consoles</source>
        <translation>
            <numerusform>Warten auf %1 von %Ln Konsole</numerusform>
            <numerusform>Warten auf %1 von %Ln Konsolen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DayBarsOutlet</name>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>Worse, above</source>
        <translation>Schlechter, oben</translation>
    </message>
    <message>
        <source>Better, below</source>
        <translation>Besser, unten</translation>
    </message>
    <message>
        <source>%1 %2 worse, %3 better</source>
        <extracomment>A day, and what a chart tells of it.</extracomment>
        <translation>%1 %2 schlechter, %3 besser</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>A day, and its number of new events.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>New Events a Day</source>
        <translation>Neue Ereignisse pro Tag</translation>
    </message>
    <message numerus="yes">
        <source>%Ln days, %1</source>
        <extracomment>How many days a chart has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%Ln Tag, %1</numerusform>
            <numerusform>%Ln Tage, %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %Ln days, %2</source>
        <extracomment>A chart&apos;s name, how many days it has, and what it tells of the last.</extracomment>
        <translation>
            <numerusform>%1, %Ln Tag, %2</numerusform>
            <numerusform>%1, %Ln Tage, %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::DeltaCorvelViewController</name>
    <message>
        <source>Add Corvel</source>
        <translation>Neuer Corvel</translation>
    </message>
    <message>
        <source>Edit Corvel</source>
        <translation>Corvel bearbeiten</translation>
    </message>
    <message>
        <source>verifying...</source>
        <translation>wird geprüft...</translation>
    </message>
    <message>
        <source>Please enter all fields</source>
        <translation>Bitte alle Felder ausfüllen</translation>
    </message>
    <message>
        <source>Corvel has already been added</source>
        <translation>Corvel ist schon eingetragen</translation>
    </message>
    <message>
        <source>gathering data...</source>
        <translation>Daten werden geholt...</translation>
    </message>
</context>
<context>
    <name>lodestar::DetailViewController</name>
    <message>
        <source>Serial Number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Machine Type</source>
        <translation>Maschinentyp</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>Copy Value</source>
        <translation>Wert kopieren</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>Find on All Consoles</source>
        <translation>Auf allen Konsolen suchen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::EventOrderViewController</name>
    <message>
        <source>Order</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>As the console sends them</source>
        <translation>Wie die Konsole sie sendet</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>Neueste zuerst</translation>
    </message>
    <message>
        <source>By status</source>
        <translation>Nach Status</translation>
    </message>
    <message>
        <source>By reference code</source>
        <translation>Nach Referenzcode</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedListViewController</name>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what is listed, such as &quot;Managed Systems&quot;, and a console&apos;s name</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedName</name>
    <message>
        <source>console details</source>
        <translation>Konsolendaten</translation>
    </message>
    <message>
        <source>Console details</source>
        <translation>Konsolendaten</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>E/A-Server</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>resource groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>Resource groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>%1 not read</source>
        <extracomment>%1 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1 nicht gelesen</translation>
    </message>
    <message>
        <source>%1 and %2 not read</source>
        <extracomment>%1 and %2 names of feeds, as in &quot;Partitions&quot; and &quot;groups&quot;</extracomment>
        <translation>%1 und %2 nicht gelesen</translation>
    </message>
    <message>
        <source>Nothing of it could be read</source>
        <translation>Nichts davon ließ sich lesen</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1, %2 and %3</source>
        <translation>%1, %2 und %3</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 feeds not read</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln von 6 Feeds nicht gelesen</numerusform>
            <numerusform>%Ln von 6 Feeds nicht gelesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1, %2 and %Ln more</source>
        <extracomment>%1 and %2 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1, %2 und %Ln weitere</numerusform>
            <numerusform>%1, %2 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>E/A-Server</translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackHost</name>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Lodestar ended unexpectedly</source>
        <translation>Lodestar wurde unerwartet beendet</translation>
    </message>
    <message numerus="yes">
        <source>%Ln reports were made on this device. They hold no passwords and are sent nowhere by themselves.</source>
        <translation>
            <numerusform>Auf diesem Gerät entstand %Ln Bericht. Er enthält keine Passwörter und wird nicht von selbst gesendet.</numerusform>
            <numerusform>Auf diesem Gerät entstanden %Ln Berichte. Sie enthalten keine Passwörter und werden nicht von selbst gesendet.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FeedbackViewController</name>
    <message>
        <source>Feedback</source>
        <translation>Rückmeldung</translation>
    </message>
    <message>
        <source>Discard this feedback?</source>
        <translation>Diese Rückmeldung verwerfen?</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Bericht gespeichert</translation>
    </message>
    <message>
        <source>It is in the list of reports on this device.</source>
        <translation>Er steht in der Liste der Berichte auf diesem Gerät.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>What Is Sent</source>
        <translation>Was gesendet wird</translation>
    </message>
    <message>
        <source>What Is Saved</source>
        <translation>Was gespeichert wird</translation>
    </message>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>The report could not be saved</source>
        <translation>Der Bericht ließ sich nicht speichern</translation>
    </message>
</context>
<context>
    <name>lodestar::FileSaver</name>
    <message>
        <source>Could not be saved: %1</source>
        <extracomment>%1 a reason, such as &quot;the disk is full.&quot;</extracomment>
        <translation>Konnte nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Als Datei speichern</translation>
    </message>
    <message>
        <source>There is already a file named %1.</source>
        <extracomment>%1 a file&apos;s name</extracomment>
        <translation>Es gibt schon eine Datei namens %1.</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
</context>
<context>
    <name>lodestar::FindListController</name>
    <message>
        <source>%1, %2</source>
        <extracomment>The name of a file: what was found, such as &quot;Managed Systems&quot;, and the text that found it</extracomment>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>lodestar::FindText</name>
    <message>
        <source>Managed Systems</source>
        <translation>Verwaltete Systeme</translation>
    </message>
    <message>
        <source>Virtual IO Servers</source>
        <translation>Virtuelle E/A-Server</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>Resource Groups</source>
        <translation>Ressourcengruppen</translation>
    </message>
    <message>
        <source>Serviceable Events</source>
        <translation>Serviceereignisse</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Konsolen</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Noch wurde nichts gelesen. Aktualisieren Sie zuerst.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <extracomment>%1 and %2 as in &quot;09:41&quot; or &quot;yesterday 21:40&quot;</extracomment>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1+</source>
        <extracomment>More than can be counted at a glance</extracomment>
        <translation>%1+</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Alle %1 zeigen</translation>
    </message>
    <message>
        <source>Nothing found for “%1”</source>
        <translation>Nichts gefunden für „%1“</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles were searched.</source>
        <translation>
            <numerusform>%1 von %Ln Konsole wurde durchsucht.</numerusform>
            <numerusform>%1 von %Ln Konsolen wurden durchsucht.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things</source>
        <translation>
            <numerusform>%Ln Objekt</numerusform>
            <numerusform>%Ln Objekte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles</source>
        <extracomment>Within &quot;2,318 things on 5 of 6 consoles, read 09:41.&quot;</extracomment>
        <translation>
            <numerusform>%1 von %Ln Konsole</numerusform>
            <numerusform>%1 von %Ln Konsolen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 on %2, read %3.</source>
        <extracomment>%1 as in &quot;2,318 things&quot;, %2 as in &quot;5 of 6 consoles&quot;, %3 as in &quot;09:41&quot; or &quot;09:41 to 09:43&quot;</extracomment>
        <translation>%1 auf %2, gelesen %3.</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 wurde nicht gelesen.</numerusform>
            <numerusform>%1 wurden nicht gelesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 von %2 fehlen.</translation>
    </message>
</context>
<context>
    <name>lodestar::FindViewController</name>
    <message>
        <source>Names</source>
        <translation>Namen</translation>
    </message>
    <message>
        <source>helios-03, vios-harbour-2b, Ledger production</source>
        <translation>helios-03, vios-harbour-2b, Ledger production</translation>
    </message>
    <message>
        <source>Addresses and serials</source>
        <translation>Adressen und Seriennummern</translation>
    </message>
    <message>
        <source>192.0.2.63, corvel-b, 06A17C2, 4210</source>
        <translation>192.0.2.63, corvel-b, 06A17C2, 4210</translation>
    </message>
    <message>
        <source>Reference codes</source>
        <translation>Referenzcodes</translation>
    </message>
    <message>
        <source>X417-2208, or just X417</source>
        <translation>X417-2208 oder nur X417</translation>
    </message>
    <message>
        <source>Event numbers and texts</source>
        <translation>Ereignisnummern und -texte</translation>
    </message>
    <message>
        <source>#1042, power supply</source>
        <translation>#1042, power supply</translation>
    </message>
    <message>
        <source>Find on all consoles</source>
        <translation>Überall suchen</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>What can be found</source>
        <translation>Was sich finden lässt</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingRows</name>
    <message>
        <source>Expected</source>
        <translation>Erwartet</translation>
    </message>
    <message>
        <source>Marked as expected until it runs again</source>
        <translation>Als erwartet vermerkt, bis es wieder läuft</translation>
    </message>
</context>
<context>
    <name>lodestar::FindingText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>A sentence and a further part of it: &quot;System in error&quot; and &quot;X417-2208&quot;</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Angehalten, lief bis %1</translation>
    </message>
    <message>
        <source>IO server stopped, ran until %1</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>E/A-Server angehalten, lief bis %1</translation>
    </message>
    <message>
        <source>Partition stopped, ran until %1</source>
        <translation>Partition angehalten, lief bis %1</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>Call-Home</translation>
    </message>
    <message>
        <source>System incomplete</source>
        <translation>System unvollständig</translation>
    </message>
    <message>
        <source>System in error</source>
        <translation>System mit Fehler</translation>
    </message>
    <message>
        <source>LED on</source>
        <translation>LED an</translation>
    </message>
    <message>
        <source>IO server in error</source>
        <translation>E/A-Server mit Fehler</translation>
    </message>
    <message>
        <source>Partition in error</source>
        <translation>Partition mit Fehler</translation>
    </message>
    <message>
        <source>Offline, %1</source>
        <extracomment>%1 why, as in &quot;connection refused&quot;</extracomment>
        <translation>Offline, %1</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
    <message>
        <source>LED on, system %1</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>LED an, System %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln resources in error</source>
        <translation>
            <numerusform>%1 von %Ln Ressource mit Fehler</numerusform>
            <numerusform>%1 von %Ln Ressourcen mit Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln Konsole</numerusform>
            <numerusform>%Ln Konsolen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems</source>
        <translation>
            <numerusform>%Ln System</numerusform>
            <numerusform>%Ln Systeme</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers</source>
        <translation>
            <numerusform>%Ln E/A-Server</numerusform>
            <numerusform>%Ln E/A-Server</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions</source>
        <translation>
            <numerusform>%Ln Partition</numerusform>
            <numerusform>%Ln Partitionen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups</source>
        <translation>
            <numerusform>%Ln Gruppe</numerusform>
            <numerusform>%Ln Gruppen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events</source>
        <translation>
            <numerusform>%Ln Ereignis</numerusform>
            <numerusform>%Ln Ereignisse</numerusform>
        </translation>
    </message>
    <message>
        <source>In error on %1</source>
        <extracomment>%1 the name of a system</extracomment>
        <translation>Mit Fehler auf %1</translation>
    </message>
    <message>
        <source>system incomplete</source>
        <translation>System unvollständig</translation>
    </message>
    <message>
        <source>system in error</source>
        <translation>System mit Fehler</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <extracomment>%1 the console&apos;s word for a system&apos;s state</extracomment>
        <translation>Warn-LED an</translation>
    </message>
    <message>
        <source>system %1</source>
        <translation>System %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things need attention</source>
        <translation>
            <numerusform>%Ln Punkt erfordert Aufmerksamkeit</numerusform>
            <numerusform>%Ln Punkte erfordern Aufmerksamkeit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln events are open</source>
        <translation>
            <numerusform>%Ln Ereignis ist offen</numerusform>
            <numerusform>%Ln Ereignisse sind offen</numerusform>
        </translation>
    </message>
    <message>
        <source>No faults</source>
        <translation>Keine Fehler</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles answered in full</source>
        <translation>
            <numerusform>%1 von %Ln Konsole antwortete vollständig</numerusform>
            <numerusform>%1 von %Ln Konsolen antworteten vollständig</numerusform>
        </translation>
    </message>
    <message>
        <source>updating... %1 of %2</source>
        <translation>wird gelesen... %1 von %2</translation>
    </message>
    <message>
        <source>The console did not answer. What it would report is not known.</source>
        <translation>Die Konsole antwortete nicht. Was sie melden würde, ist nicht bekannt.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln consoles did not answer. What they would report is not known.</source>
        <translation>
            <numerusform>%1 von %Ln Konsole antwortete nicht. Was sie melden würde, ist nicht bekannt.</numerusform>
            <numerusform>%1 von %Ln Konsolen antworteten nicht. Was sie melden würden, ist nicht bekannt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things needed attention there before.</source>
        <translation>
            <numerusform>Dort erforderte zuvor %Ln Punkt Aufmerksamkeit.</numerusform>
            <numerusform>Dort erforderten zuvor %Ln Punkte Aufmerksamkeit.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more things are not shown.</source>
        <translation>
            <numerusform>%Ln weiterer Punkt wird nicht gezeigt.</numerusform>
            <numerusform>%Ln weitere Punkte werden nicht gezeigt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Not answering</source>
        <translation>Ohne Antwort</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Open events</source>
        <translation>Offene Ereignisse</translation>
    </message>
    <message>
        <source>Consoles</source>
        <translation>Konsolen</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>IO servers</source>
        <translation>E/A-Server</translation>
    </message>
    <message>
        <source>Partitions</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>consoles</source>
        <translation>Konsolen</translation>
    </message>
    <message>
        <source>systems</source>
        <translation>Systeme</translation>
    </message>
    <message>
        <source>partitions</source>
        <translation>Partitionen</translation>
    </message>
    <message>
        <source>groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>events</source>
        <translation>Ereignisse</translation>
    </message>
    <message numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln-mal</numerusform>
            <numerusform>%Ln-mal</numerusform>
        </translation>
    </message>
    <message>
        <source>IO servers</source>
        <comment>within a sentence</comment>
        <translation>E/A-Server</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetAgainViewController</name>
    <message>
        <source>Passwords, one a user</source>
        <translation>Passwörter</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetChooseViewController</name>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Konsolentabelle einlesen</translation>
    </message>
    <message>
        <source>Name, address and user were found in its first line.</source>
        <translation>Name, Adresse und Benutzer stehen in der Kopfzeile.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Verify %Ln Consoles</source>
        <translation>
            <numerusform>%Ln Konsole prüfen</numerusform>
            <numerusform>%Ln Konsolen prüfen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventCell</name>
    <message>
        <source>call home</source>
        <translation>Call-Home</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetEventsViewController</name>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message numerus="yes">
        <source>%1 were not read.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 wurde nicht gelesen.</numerusform>
            <numerusform>%1 wurden nicht gelesen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 are missing.</source>
        <extracomment>What was not read, and the names of its consoles.</extracomment>
        <translation>%1 von %2 fehlen.</translation>
    </message>
    <message>
        <source>Nothing was read yet. Refresh first.</source>
        <translation>Noch wurde nichts gelesen. Aktualisieren Sie zuerst.</translation>
    </message>
    <message>
        <source>No serviceable events.</source>
        <translation>Keine Serviceereignisse.</translation>
    </message>
    <message>
        <source>Nothing left to show</source>
        <translation>Nichts mehr zu zeigen</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offen</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>Call-Home</translation>
    </message>
    <message>
        <source>%1: %2 of %3</source>
        <extracomment>What is chosen, how many events that are, and how many there are.</extracomment>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <source>no reference code</source>
        <translation>kein Referenzcode</translation>
    </message>
    <message>
        <source>no status</source>
        <translation>kein Status</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetFile</name>
    <message>
        <source>CSV files (*.csv *.txt *.tsv)</source>
        <extracomment>the files that a dialogue shows; what stands in brackets stays</extracomment>
        <translation>CSV-Dateien (*.csv *.txt *.tsv)</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Konsolentabelle einlesen</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetText</name>
    <message>
        <source>“%1”</source>
        <extracomment>%1 a name</extracomment>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %Ln more</source>
        <extracomment>%1 names, %n how many more there are</extracomment>
        <translation>
            <numerusform>%1 und %Ln weitere</numerusform>
            <numerusform>%1 und %Ln weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <extracomment>%1 and %2 names</extracomment>
        <translation>%1 und %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles</source>
        <translation>
            <numerusform>%Ln Konsole</numerusform>
            <numerusform>%Ln Konsolen</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no first line with name, address and user.</source>
        <translation>Es gibt keine Kopfzeile mit Name, Adresse und Benutzer.</translation>
    </message>
    <message>
        <source>This file is too large for a fleet sheet.</source>
        <translation>Diese Datei ist zu groß für eine Konsolentabelle.</translation>
    </message>
    <message>
        <source>This is not a CSV file.</source>
        <translation>Das ist keine CSV-Datei.</translation>
    </message>
    <message numerus="yes">
        <source>Passwords are never read from a sheet: %1 are left out.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>
            <numerusform>Passwörter werden nie aus einer Tabelle gelesen: Die Spalte %1 wird ausgelassen.</numerusform>
            <numerusform>Passwörter werden nie aus einer Tabelle gelesen: Die Spalten %1 werden ausgelassen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Not used: %1.</source>
        <extracomment>%1 titles of columns</extracomment>
        <translation>Nicht benutzt: %1.</translation>
    </message>
    <message>
        <source>Row %1: no address</source>
        <translation>Zeile %1: keine Adresse</translation>
    </message>
    <message>
        <source>Row %1: no user</source>
        <translation>Zeile %1: kein Benutzer</translation>
    </message>
    <message>
        <source>Row %1: the same address as row %2</source>
        <translation>Zeile %1: gleiche Adresse wie Zeile %2</translation>
    </message>
    <message>
        <source>Row %1: not an address</source>
        <translation>Zeile %1: keine gültige Adresse</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>verifying</source>
        <translation>wird geprüft</translation>
    </message>
    <message>
        <source>gathering</source>
        <translation>wird geholt</translation>
    </message>
    <message>
        <source>verified</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>abgewiesen</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>keine Antwort</translation>
    </message>
    <message>
        <source>no address</source>
        <translation>keine Adresse</translation>
    </message>
    <message>
        <source>not verified</source>
        <translation>nicht bestätigt</translation>
    </message>
    <message>
        <source>tried</source>
        <translation>geprüft</translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln s left</source>
        <translation>
            <numerusform>geprüft, noch etwa %Ln&#xa0;s</numerusform>
            <numerusform>geprüft, noch etwa %Ln&#xa0;s</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>tried, about %Ln min left</source>
        <translation>
            <numerusform>geprüft, noch etwa %Ln&#xa0;min</numerusform>
            <numerusform>geprüft, noch etwa %Ln&#xa0;min</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <translation>
            <numerusform>%Ln von 6 fehlt</numerusform>
            <numerusform>%Ln von 6 fehlen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetSheetViewController</name>
    <message>
        <source>Fleet Sheet</source>
        <translation>Konsolentabelle</translation>
    </message>
    <message numerus="yes">
        <source>Export %Ln Consoles</source>
        <translation>
            <numerusform>%Ln Konsole exportieren</numerusform>
            <numerusform>%Ln Konsolen exportieren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FleetUnusableViewController</name>
    <message>
        <source>Cannot be used</source>
        <translation>Nicht verwendbar</translation>
    </message>
</context>
<context>
    <name>lodestar::FleetVerifyViewController</name>
    <message>
        <source>Verifying</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Stopped. Nothing was added.</source>
        <translation>Angehalten. Nichts wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>Import Fleet Sheet</source>
        <translation>Konsolentabelle einlesen</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <extracomment>%1 a number of so many</extracomment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>verified and ready to be added</source>
        <translation>bestätigt und bereit</translation>
    </message>
    <message numerus="yes">
        <source>Add %Ln Consoles</source>
        <translation>
            <numerusform>%Ln Konsole hinzufügen</numerusform>
            <numerusform>%Ln Konsolen hinzufügen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %Ln are added together, or none.</source>
        <translation>
            <numerusform>Nur diese Konsole wird hinzugefügt.</numerusform>
            <numerusform>Alle %Ln werden zusammen hinzugefügt oder keine.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 verified and ready to be added</source>
        <translation>%1 von %2 bestätigt und bereit</translation>
    </message>
    <message>
        <source>%1 of %2 tried</source>
        <translation>%1 von %2 geprüft</translation>
    </message>
    <message>
        <source>Not verified</source>
        <translation>Nicht bestätigt</translation>
    </message>
    <message>
        <source>Not added</source>
        <translation>Nicht hinzugefügt</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Verified</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Show %1 More</source>
        <translation>%1 weitere zeigen</translation>
    </message>
    <message>
        <source>Show all %1</source>
        <translation>Alle %1 zeigen</translation>
    </message>
    <message numerus="yes">
        <source>Try These %Ln Again</source>
        <translation>
            <numerusform>Diese noch einmal versuchen</numerusform>
            <numerusform>Diese %Ln noch einmal versuchen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Save Them as a Sheet</source>
        <translation>
            <numerusform>Als Tabelle speichern</numerusform>
            <numerusform>Als Tabelle speichern</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing Was Added</source>
        <translation>Nichts hinzugefügt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message numerus="yes">
        <source>Added %Ln consoles</source>
        <translation>
            <numerusform>%Ln Konsole hinzugefügt</numerusform>
            <numerusform>%Ln Konsolen hinzugefügt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::FoundFields</name>
    <message>
        <source>serial %1</source>
        <translation>Seriennr. %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln resources</source>
        <translation>
            <numerusform>%Ln Ressource</numerusform>
            <numerusform>%Ln Ressourcen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln in error</source>
        <extracomment>How many of a group&apos;s resources are in error, as in &quot;16 resources, 1 in error&quot;</extracomment>
        <translation>
            <numerusform>%Ln mit Fehler</numerusform>
            <numerusform>%Ln mit Fehler</numerusform>
        </translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Good</source>
        <translation>Gut</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>Offline</translation>
    </message>
</context>
<context>
    <name>lodestar::GroupedListViewController</name>
    <message>
        <source>Unknown system</source>
        <translation>Unbekanntes System</translation>
    </message>
</context>
<context>
    <name>lodestar::KeySheetController</name>
    <message>
        <source>On this screen</source>
        <translation>Auf diesem Bildschirm</translation>
    </message>
    <message>
        <source>Everywhere</source>
        <translation>Überall</translation>
    </message>
    <message>
        <source>In lists</source>
        <translation>In Listen</translation>
    </message>
    <message>
        <source>In charts</source>
        <translation>In Diagrammen</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
</context>
<context>
    <name>lodestar::KeyTable</name>
    <message>
        <source>%1 (%2)</source>
        <extracomment>A button&apos;s tip: what the button does, and the keys that do it</extracomment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>lodestar::LPDetailViewController</name>
    <message>
        <source>Partition Details</source>
        <translation>Partitionsdaten</translation>
    </message>
</context>
<context>
    <name>lodestar::LargeChartViewController</name>
    <message>
        <source>No performance data available.</source>
        <translation>Keine Leistungsdaten vorhanden.</translation>
    </message>
    <message>
        <source>Save points as CSV</source>
        <translation>Punkte als CSV speichern</translation>
    </message>
    <message>
        <source>Save picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lodestar::ListShare</name>
    <message>
        <source>Save list as CSV</source>
        <translation>Liste als CSV speichern</translation>
    </message>
    <message>
        <source>Save as File</source>
        <translation>Als Datei speichern</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln rows</source>
        <translation>
            <numerusform>%Ln Zeile</numerusform>
            <numerusform>%Ln Zeilen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::LoginViewController</name>
    <message>
        <source>Passcode</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Login Failed</source>
        <translation>Anmeldung gescheitert</translation>
    </message>
    <message>
        <source>Incorrect Credentials</source>
        <translation>Falscher Code</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Reset Application?</source>
        <translation>Lodestar zurücksetzen?</translation>
    </message>
    <message>
        <source>Resetting your password will clear all application data</source>
        <translation>Beim Zurücksetzen des Codes werden alle Daten gelöscht</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lodestar::MCViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Allgemeines</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modell und Seriennummer</translation>
    </message>
    <message>
        <source>Version Information</source>
        <translation>Versionsangaben</translation>
    </message>
    <message>
        <source>Console information could not be loaded.</source>
        <translation>Die Angaben der Konsole ließen sich nicht laden.</translation>
    </message>
    <message>
        <source>Management Console</source>
        <translation>Management-Konsole</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
    <message>
        <source>Console Data</source>
        <translation>Konsolendaten</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k.&#xa0;A.</translation>
    </message>
    <message>
        <source>Console Name</source>
        <translation>Name der Konsole</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Build Level</source>
        <translation>Build</translation>
    </message>
</context>
<context>
    <name>lodestar::MSDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Allgemeines</translation>
    </message>
    <message>
        <source>Model &amp; Serial Information</source>
        <translation>Modell und Seriennummer</translation>
    </message>
    <message>
        <source>Processor Information</source>
        <translation>Prozessoren</translation>
    </message>
    <message>
        <source>Memory Information</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP-Adresse</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Referenzcode</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>Warn-LED an</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Verfügbare Recheneinheiten</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Verfügbarer Speicher</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListCell</name>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>attention LED on</source>
        <translation>Warn-LED an</translation>
    </message>
</context>
<context>
    <name>lodestar::MSListViewController</name>
    <message>
        <source>System menu</source>
        <translation>Systemmenü</translation>
    </message>
    <message>
        <source>Managed System</source>
        <translation>Verwaltetes System</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Systemangaben</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lodestar::MSOverViewController</name>
    <message>
        <source>Managed System</source>
        <translation>Verwaltetes System</translation>
    </message>
    <message>
        <source>Performance Monitoring</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Logical Partitions</source>
        <translation>Logische Partitionen</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Systemangaben</translation>
    </message>
</context>
<context>
    <name>lodestar::OpenSourceViewController</name>
    <message>
        <source>Open Source Licenses</source>
        <translation>Open-Source-Lizenzen</translation>
    </message>
</context>
<context>
    <name>lodestar::OrnisLicenseViewController</name>
    <message>
        <source>Ornis License</source>
        <translation>Ornis-Lizenz</translation>
    </message>
</context>
<context>
    <name>lodestar::PCMViewController</name>
    <message>
        <source>Fetching performance data...</source>
        <translation>Leistungsdaten werden geholt...</translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
    <message>
        <source>No performance data available.</source>
        <translation>Keine Leistungsdaten vorhanden.</translation>
    </message>
</context>
<context>
    <name>lodestar::PartitionDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Allgemeines</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>lodestar::PasswordCreationViewController</name>
    <message>
        <source>Set Password</source>
        <translation>Code setzen</translation>
    </message>
    <message>
        <source>Any characters, any length.</source>
        <translation>Beliebige Zeichen, beliebige Länge.</translation>
    </message>
    <message>
        <source>%1. The passcode was not changed.</source>
        <translation>%1. Der Code wurde nicht geändert.</translation>
    </message>
    <message>
        <source>Please reenter password</source>
        <translation>Bitte Code noch einmal eingeben</translation>
    </message>
    <message>
        <source>%1. The passcode was not saved.</source>
        <translation>%1. Der Code wurde nicht gespeichert.</translation>
    </message>
    <message>
        <source>Password Saved</source>
        <translation>Code gespeichert</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Gescheitert</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>lodestar::PerformanceText</name>
    <message>
        <source>%1, %2</source>
        <extracomment>%1 a day, %2 a time of day</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <extracomment>%1 as in &quot;lowest 2.80&quot;, %2 a time of day</extracomment>
        <translation>%1 um %2</translation>
    </message>
    <message>
        <source>%1 all along</source>
        <extracomment>%1 a number</extracomment>
        <translation>konstant %1</translation>
    </message>
    <message>
        <source>lowest %1</source>
        <translation>Minimum %1</translation>
    </message>
    <message>
        <source>mean %1</source>
        <translation>Mittel %1</translation>
    </message>
    <message>
        <source>highest %1</source>
        <translation>Maximum %1</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>zuletzt %1</translation>
    </message>
    <message>
        <source>all along</source>
        <translation>konstant</translation>
    </message>
    <message>
        <source>Total Processors</source>
        <translation>Prozessoren gesamt</translation>
    </message>
    <message>
        <source>Processors Allocated</source>
        <translation>Prozessoren zugeteilt</translation>
    </message>
    <message>
        <source>Processors Used</source>
        <translation>Prozessoren genutzt</translation>
    </message>
    <message>
        <source>Total Memory</source>
        <translation>Speicher gesamt</translation>
    </message>
    <message>
        <source>Memory Allocated</source>
        <translation>Speicher zugeteilt</translation>
    </message>
    <message>
        <source>Memory Used</source>
        <translation>Speicher genutzt</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Allocated</source>
        <translation>Zugeteilt</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Genutzt</translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no values and are left out</source>
        <translation>
            <numerusform>%Ln Messpunkt hatte keine Werte und fehlt</numerusform>
            <numerusform>%Ln Messpunkte hatten keine Werte und fehlen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln samples had no time and are left out of the chart</source>
        <translation>
            <numerusform>%Ln Messpunkt hatte keine Zeit und fehlt im Diagramm</numerusform>
            <numerusform>%Ln Messpunkte hatten keine Zeit und fehlen im Diagramm</numerusform>
        </translation>
    </message>
    <message>
        <source>total %1</source>
        <translation>gesamt %1</translation>
    </message>
    <message>
        <source>allocated %1</source>
        <translation>zugeteilt %1</translation>
    </message>
    <message>
        <source>used %1</source>
        <translation>genutzt %1</translation>
    </message>
</context>
<context>
    <name>lodestar::PieChartView</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::PlotChartView</name>
    <message>
        <source>%1 %2</source>
        <extracomment>A data set&apos;s name and its latest value, as in &quot;Processors Used 6.5&quot;.</extracomment>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>, </source>
        <extracomment>Between the data sets of a chart as they are read out.</extracomment>
        <translation>, </translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <extracomment>A data set&apos;s name, the label of one of its values, and the value.</extracomment>
        <translation>%1, %2: %3</translation>
    </message>
</context>
<context>
    <name>lodestar::RGListCell</name>
    <message>
        <source>cyan</source>
        <translation>türkis</translation>
    </message>
    <message>
        <source>green</source>
        <translation>grün</translation>
    </message>
    <message>
        <source>red</source>
        <translation>rot</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>violett</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blau</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>grau</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>gelb</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>orange</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>rosa</translation>
    </message>
    <message numerus="yes">
        <source>%n Resources</source>
        <translation>
            <numerusform>%n Ressource</numerusform>
            <numerusform>%n Ressourcen</numerusform>
        </translation>
    </message>
    <message>
        <source>updating...</source>
        <translation>wird gelesen...</translation>
    </message>
    <message>
        <source>%1 good, %2 off, %3 alert, %4 error</source>
        <extracomment>A resource group&apos;s states, read aloud: counts</extracomment>
        <translation>%1 gut, %2 aus, %3 Warnung, %4 Fehler</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingController</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Alles kopieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>lodestar::ReadingMark</name>
    <message>
        <source>%1 missing</source>
        <extracomment>%1 the name of a feed, as in &quot;partitions&quot;</extracomment>
        <translation>%1 fehlen</translation>
    </message>
    <message>
        <source>offline %1</source>
        <extracomment>%1 as in &quot;since 02:58&quot;</extracomment>
        <translation>offline %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of 6 missing</source>
        <extracomment>%n of the six feeds</extracomment>
        <translation>
            <numerusform>%Ln von 6 fehlt</numerusform>
            <numerusform>%Ln von 6 fehlen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReasonText</name>
    <message>
        <source>Refresh once more.</source>
        <translation>Aktualisieren Sie noch einmal.</translation>
    </message>
    <message>
        <source>Check the address.</source>
        <translation>Prüfen Sie die Adresse.</translation>
    </message>
    <message>
        <source>Check the address; it may be another service.</source>
        <translation>Prüfen Sie die Adresse; vielleicht ist es ein anderer Dienst.</translation>
    </message>
    <message>
        <source>Tell us through feedback.</source>
        <translation>Schreiben Sie uns eine Rückmeldung.</translation>
    </message>
    <message>
        <source>Refresh once more. A busy console often answers the second time.</source>
        <translation>Aktualisieren Sie noch einmal. Eine beschäftigte Konsole antwortet oft beim zweiten Mal.</translation>
    </message>
    <message>
        <source>If the same feed fails again, restart the console’s web service.</source>
        <translation>Scheitert derselbe Feed wieder, starten Sie den Webdienst der Konsole neu.</translation>
    </message>
    <message>
        <source>nothing within 10 s</source>
        <translation>nichts binnen 10&#xa0;s</translation>
    </message>
    <message>
        <source>name not found</source>
        <translation>Name nicht gefunden</translation>
    </message>
    <message>
        <source>connection refused</source>
        <translation>Verbindung abgewiesen</translation>
    </message>
    <message>
        <source>connection broke off</source>
        <translation>Verbindung abgebrochen</translation>
    </message>
    <message>
        <source>redirected too often</source>
        <translation>zu oft umgeleitet</translation>
    </message>
    <message>
        <source>answer not understood</source>
        <translation>Antwort nicht verständlich</translation>
    </message>
    <message>
        <source>answer too large</source>
        <translation>Antwort zu groß</translation>
    </message>
    <message>
        <source>no secure connection</source>
        <translation>keine sichere Verbindung</translation>
    </message>
    <message>
        <source>its certificate changed</source>
        <translation>ihr Zertifikat hat sich geändert</translation>
    </message>
    <message>
        <source>wrong user or password</source>
        <translation>falscher Benutzer oder falsches Passwort</translation>
    </message>
    <message>
        <source>the console failed to answer (%1)</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>die Konsole konnte nicht antworten (%1)</translation>
    </message>
    <message>
        <source>answered %1</source>
        <extracomment>%1 an HTTP status</extracomment>
        <translation>antwortete %1</translation>
    </message>
    <message>
        <source>no session key</source>
        <translation>kein Sitzungsschlüssel</translation>
    </message>
    <message>
        <source>It did not answer within 10 s.</source>
        <translation>Sie antwortete nicht binnen 10&#xa0;s.</translation>
    </message>
    <message>
        <source>Its name has no address.</source>
        <translation>Zu ihrem Namen gibt es keine Adresse.</translation>
    </message>
    <message>
        <source>Something is there, but refuses port 12443.</source>
        <translation>Etwas ist da, weist aber Port 12443 ab.</translation>
    </message>
    <message>
        <source>It broke off while answering.</source>
        <translation>Sie brach die Antwort ab.</translation>
    </message>
    <message>
        <source>It sent Lodestar from one address to the next.</source>
        <translation>Sie schickte Lodestar von Adresse zu Adresse.</translation>
    </message>
    <message>
        <source>What it answered is not HTTP.</source>
        <translation>Was sie antwortete, ist kein HTTP.</translation>
    </message>
    <message>
        <source>It answered more than Lodestar takes.</source>
        <translation>Sie antwortete mehr, als Lodestar annimmt.</translation>
    </message>
    <message>
        <source>It offers no secure connection that this device accepts.</source>
        <translation>Sie bietet keine sichere Verbindung, die dieses Gerät annimmt.</translation>
    </message>
    <message>
        <source>Its certificate changed in the middle of the attempt. No password was sent.</source>
        <translation>Ihr Zertifikat änderte sich mitten im Versuch. Es wurde kein Passwort gesendet.</translation>
    </message>
    <message>
        <source>It refused the user or the password.</source>
        <translation>Sie wies Benutzer oder Passwort ab.</translation>
    </message>
    <message>
        <source>It answered with an error of its own.</source>
        <translation>Sie antwortete mit einem eigenen Fehler.</translation>
    </message>
    <message>
        <source>It gave an answer that was not expected.</source>
        <translation>Sie gab eine unerwartete Antwort.</translation>
    </message>
    <message>
        <source>It accepted the logon but gave no key.</source>
        <translation>Sie nahm die Anmeldung an, gab aber keinen Schlüssel.</translation>
    </message>
    <message>
        <source>Check that this device is on the right network.</source>
        <translation>Prüfen Sie, ob dieses Gerät im richtigen Netz ist.</translation>
    </message>
    <message>
        <source>A firewall may drop port 12443.</source>
        <translation>Vielleicht sperrt eine Firewall Port 12443.</translation>
    </message>
    <message>
        <source>Refresh in some minutes; the console may be starting.</source>
        <translation>Aktualisieren Sie in einigen Minuten; vielleicht startet die Konsole.</translation>
    </message>
    <message>
        <source>Check the spelling of the address.</source>
        <translation>Prüfen Sie die Schreibweise der Adresse.</translation>
    </message>
    <message>
        <source>Check this device&apos;s network.</source>
        <translation>Prüfen Sie das Netz dieses Geräts.</translation>
    </message>
    <message>
        <source>Try the number instead of the name.</source>
        <translation>Versuchen Sie die IP-Adresse statt des Namens.</translation>
    </message>
    <message>
        <source>The console may be starting; refresh in some minutes.</source>
        <translation>Vielleicht startet die Konsole; aktualisieren Sie in einigen Minuten.</translation>
    </message>
    <message>
        <source>If it stays so, look at what lies between here and the console.</source>
        <translation>Bleibt es so, prüfen Sie, was zwischen hier und der Konsole liegt.</translation>
    </message>
    <message>
        <source>Update the console: its TLS may be too old.</source>
        <translation>Bringen Sie die Konsole auf neuen Stand: Ihr TLS ist vielleicht zu alt.</translation>
    </message>
    <message>
        <source>Before you refresh, compare the new fingerprint below with the one that the console shows.</source>
        <translation>Vergleichen Sie vor dem Aktualisieren den neuen Fingerabdruck unten mit dem, den die Konsole zeigt.</translation>
    </message>
    <message>
        <source>If they agree, refresh. The new one is then taken.</source>
        <translation>Stimmen sie überein, aktualisieren Sie. Dann gilt der neue.</translation>
    </message>
    <message>
        <source>If not, something else answers at this address. Do not refresh; ask those who run the network.</source>
        <translation>Wenn nicht, antwortet unter dieser Adresse etwas anderes. Aktualisieren Sie nicht; fragen Sie, wer das Netz betreibt.</translation>
    </message>
    <message>
        <source>Check the user on the console; it may be locked.</source>
        <translation>Prüfen Sie den Benutzer auf der Konsole; vielleicht ist er gesperrt.</translation>
    </message>
    <message>
        <source>Delete the console and add it with the new password.</source>
        <translation>Löschen Sie die Konsole und fügen Sie sie mit dem neuen Passwort hinzu.</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportContent</name>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>Call home</source>
        <translation>Call-Home</translation>
    </message>
    <message>
        <source>intended</source>
        <translation>vorgesehen</translation>
    </message>
    <message>
        <source>not intended</source>
        <translation>nicht vorgesehen</translation>
    </message>
    <message>
        <source>, extension %1</source>
        <extracomment>After a reference code; %1 its extension</extracomment>
        <translation>, Erweiterung %1</translation>
    </message>
    <message>
        <source>Reference code</source>
        <translation>Referenzcode</translation>
    </message>
    <message>
        <source>Firmware fix</source>
        <translation>Firmware-Korrektur</translation>
    </message>
    <message>
        <source>First reported</source>
        <translation>Zuerst gemeldet</translation>
    </message>
    <message>
        <source>Last reported</source>
        <translation>Zuletzt gemeldet</translation>
    </message>
    <message>
        <source>Reported</source>
        <translation>Gemeldet</translation>
    </message>
    <message>
        <source>Part %1</source>
        <translation>Teil %1</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Console</source>
        <translation>Konsole</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seriennr.</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Gelesen</translation>
    </message>
    <message>
        <source>Made by %1</source>
        <extracomment>%1 this application with its version</extracomment>
        <translation>Erstellt von %1</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Type and model</source>
        <translation>Typ und Modell</translation>
    </message>
    <message>
        <source>Serviceable event #%1</source>
        <extracomment>%1 the event&apos;s number</extracomment>
        <translation>Serviceereignis #%1</translation>
    </message>
    <message>
        <source>System %1</source>
        <extracomment>%1 a managed system</extracomment>
        <translation>System %1</translation>
    </message>
    <message>
        <source>Attention LED On</source>
        <translation>Warn-LED an</translation>
    </message>
    <message>
        <source>Available Processing Units</source>
        <translation>Verfügbare Recheneinheiten</translation>
    </message>
    <message>
        <source>Available Memory</source>
        <translation>Verfügbarer Speicher</translation>
    </message>
    <message>
        <source>[address left out]</source>
        <translation>[Adresse weggelassen]</translation>
    </message>
    <message numerus="yes">
        <source>%Ln more times</source>
        <translation>
            <numerusform>noch %Ln-mal</numerusform>
            <numerusform>noch %Ln-mal</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::ReportListViewController</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
</context>
<context>
    <name>lodestar::ReportViewController</name>
    <message>
        <source>Send</source>
        <translation>Senden</translation>
    </message>
    <message>
        <source>Report Exported</source>
        <translation>Bericht exportiert</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The report could not be exported</source>
        <translation>Der Bericht ließ sich nicht exportieren</translation>
    </message>
    <message>
        <source>Delete this report?</source>
        <translation>Diesen Bericht löschen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The report could not be deleted</source>
        <translation>Der Bericht ließ sich nicht löschen</translation>
    </message>
</context>
<context>
    <name>lodestar::SEDetailViewController</name>
    <message>
        <source>Main Information</source>
        <translation>Allgemeines</translation>
    </message>
    <message>
        <source>Associated FRUs</source>
        <translation>Zugehörige FRUs</translation>
    </message>
    <message>
        <source>Event Details</source>
        <translation>Ereignisdaten</translation>
    </message>
    <message>
        <source>Problem Number</source>
        <translation>Problemnummer</translation>
    </message>
    <message>
        <source>Call Home Intended</source>
        <translation>Call-Home vorgesehen</translation>
    </message>
    <message>
        <source>Prob Mgmt Hardware Record</source>
        <translation>Hardware-Eintrag der Problemverwaltung</translation>
    </message>
    <message>
        <source>Approval State</source>
        <translation>Freigabestatus</translation>
    </message>
    <message>
        <source>Reference Code</source>
        <translation>Referenzcode</translation>
    </message>
    <message>
        <source>Reference Code Extension</source>
        <translation>Erweiterung des Referenzcodes</translation>
    </message>
    <message>
        <source>System Reference Code</source>
        <translation>System-Referenzcode</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Firmware Fix</source>
        <translation>Firmware-Korrektur</translation>
    </message>
    <message>
        <source>First Reported Time</source>
        <translation>Zuerst gemeldet</translation>
    </message>
    <message>
        <source>Last Reported Time</source>
        <translation>Zuletzt gemeldet</translation>
    </message>
    <message>
        <source>Data Event Time</source>
        <translation>Zeit der Daten</translation>
    </message>
    <message>
        <source>Reporting Console Name</source>
        <translation>Name der meldenden Konsole</translation>
    </message>
    <message>
        <source>Reporting MTMS</source>
        <translation>Meldende MTMS</translation>
    </message>
    <message>
        <source>Failing MTMS</source>
        <translation>Fehlerhafte MTMS</translation>
    </message>
    <message>
        <source>Event Text</source>
        <translation>Ereignistext</translation>
    </message>
    <message>
        <source>Event Severity</source>
        <translation>Schweregrad</translation>
    </message>
    <message>
        <source>Notification Type</source>
        <translation>Meldungsart</translation>
    </message>
    <message>
        <source>Duplicate Count</source>
        <translation>Anzahl Duplikate</translation>
    </message>
    <message>
        <source>Mgmt Console Name</source>
        <translation>Name der Mgmt-Konsole</translation>
    </message>
    <message>
        <source>Mgmt Console MTMS</source>
        <translation>MTMS der Mgmt-Konsole</translation>
    </message>
    <message>
        <source>Part Number</source>
        <translation>Teilenummer</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location Code</source>
        <translation>Ortscode</translation>
    </message>
    <message>
        <source>Previously Replaced</source>
        <translation>Schon ersetzt</translation>
    </message>
    <message>
        <source>Replaced Timestamp</source>
        <translation>Zeitpunkt des Ersatzes</translation>
    </message>
    <message>
        <source>Replacement Group</source>
        <translation>Ersatzgruppe</translation>
    </message>
</context>
<context>
    <name>lodestar::SEListViewController</name>
    <message>
        <source>N/A</source>
        <translation>k.&#xa0;A.</translation>
    </message>
</context>
<context>
    <name>lodestar::SearchBarOutlet</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>lodestar::Sentence</name>
    <message>
        <source>, </source>
        <extracomment>Between the parts of a sentence or of a list</extracomment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>lodestar::ServiceReportController</name>
    <message>
        <source>Service Report</source>
        <translation>Servicebericht</translation>
    </message>
</context>
<context>
    <name>lodestar::SettingsViewController</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSDetailViewController</name>
    <message>
        <source>VIOS Details</source>
        <translation>VIOS-Daten</translation>
    </message>
</context>
<context>
    <name>lodestar::VIOSViewController</name>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
</context>
<context>
    <name>lodestar::VersionViewController</name>
    <message>
        <source>Release Notes</source>
        <translation>Versionshinweise</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchConsolesViewController</name>
    <message>
        <source>Consoles</source>
        <translation>Konsolen</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchMessages</name>
    <message>
        <source>%1. %2</source>
        <extracomment>Two sentences, the first without its full stop.</extracomment>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Between %1 and %2</source>
        <extracomment>Times of day, as a sentence or with a console before it.</extracomment>
        <translation>Zwischen %1 und %2</translation>
    </message>
    <message>
        <source>%1, between %2 and %3</source>
        <translation>%1, zwischen %2 und %3</translation>
    </message>
    <message>
        <source>Last read in full at %1</source>
        <translation>Zuletzt vollständig gelesen: %1</translation>
    </message>
    <message>
        <source>%1 is offline</source>
        <extracomment>%1 a console</extracomment>
        <translation>%1 ist offline</translation>
    </message>
    <message>
        <source>call home</source>
        <translation>Call-Home</translation>
    </message>
    <message>
        <source>%1: #%2 opened</source>
        <extracomment>%1 a console, %2 the number of an event</extracomment>
        <translation>%1: #%2 eröffnet</translation>
    </message>
    <message>
        <source>%1 is incomplete</source>
        <translation>%1 ist unvollständig</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>%1 a console, %2 as in &quot;Partitions not read&quot;
----------
%1 a console, %2 as in &quot;3 things got worse&quot;</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 stopped</source>
        <translation>%1 angehalten</translation>
    </message>
    <message>
        <source>%1: LED on</source>
        <translation>%1: LED an</translation>
    </message>
    <message>
        <source>%1 is in error</source>
        <translation>%1 hat einen Fehler</translation>
    </message>
    <message>
        <source>offline</source>
        <translation>offline</translation>
    </message>
    <message>
        <source>%1 incomplete</source>
        <translation>%1 unvollständig</translation>
    </message>
    <message>
        <source>not read in full</source>
        <translation>nicht vollständig gelesen</translation>
    </message>
    <message>
        <source>LED on at %1</source>
        <translation>LED an bei %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln new events</source>
        <translation>
            <numerusform>%Ln neues Ereignis</numerusform>
            <numerusform>%Ln neue Ereignisse</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 in error</source>
        <translation>%1 mit Fehler</translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles offline</source>
        <translation>
            <numerusform>%Ln Konsole offline</numerusform>
            <numerusform>%Ln Konsolen offline</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems in error</source>
        <translation>
            <numerusform>%Ln System mit Fehler</numerusform>
            <numerusform>%Ln Systeme mit Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln systems incomplete</source>
        <translation>
            <numerusform>%Ln System unvollständig</numerusform>
            <numerusform>%Ln Systeme unvollständig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers in error</source>
        <translation>
            <numerusform>%Ln E/A-Server mit Fehler</numerusform>
            <numerusform>%Ln E/A-Server mit Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions in error</source>
        <translation>
            <numerusform>%Ln Partition mit Fehler</numerusform>
            <numerusform>%Ln Partitionen mit Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles not read in full</source>
        <translation>
            <numerusform>%Ln Konsole nicht vollständig gelesen</numerusform>
            <numerusform>%Ln Konsolen nicht vollständig gelesen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln IO servers stopped</source>
        <translation>
            <numerusform>%Ln E/A-Server angehalten</numerusform>
            <numerusform>%Ln E/A-Server angehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln partitions stopped</source>
        <translation>
            <numerusform>%Ln Partition angehalten</numerusform>
            <numerusform>%Ln Partitionen angehalten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln LEDs on</source>
        <translation>
            <numerusform>%Ln LED an</numerusform>
            <numerusform>%Ln LEDs an</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln groups in error</source>
        <translation>
            <numerusform>%Ln Gruppe mit Fehler</numerusform>
            <numerusform>%Ln Gruppen mit Fehler</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got worse</source>
        <translation>
            <numerusform>%Ln Verschlechterung</numerusform>
            <numerusform>%Ln Verschlechterungen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 on %Ln consoles</source>
        <extracomment>%1 as in &quot;7 things got worse&quot;, %n consoles</extracomment>
        <translation>
            <numerusform>%1 auf %Ln Konsole</numerusform>
            <numerusform>%1 auf %Ln Konsolen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln things remain</source>
        <translation>
            <numerusform>%Ln Punkt bleibt</numerusform>
            <numerusform>%Ln Punkte bleiben</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 is online again</source>
        <translation>%1 ist wieder online</translation>
    </message>
    <message>
        <source>%1: %2 read again</source>
        <extracomment>%1 a console, %2 the name of a feed, as in &quot;Partitions&quot;</extracomment>
        <translation>%1: %2 wieder gelesen</translation>
    </message>
    <message>
        <source>%1: LED off</source>
        <translation>%1: LED aus</translation>
    </message>
    <message>
        <source>%1 is %2 again</source>
        <extracomment>%1 a name, %2 the console&apos;s word for a state</extracomment>
        <translation>%1 ist wieder %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln things got better</source>
        <translation>
            <numerusform>%Ln Verbesserung</numerusform>
            <numerusform>%Ln Verbesserungen</numerusform>
        </translation>
    </message>
    <message>
        <source>After %1</source>
        <extracomment>%1 a console, %2 as in &quot;42 min&quot;</extracomment>
        <translation>Nach %1</translation>
    </message>
    <message>
        <source>%1, after %2</source>
        <translation>%1, nach %2</translation>
    </message>
    <message>
        <source>In the night, %1</source>
        <extracomment>%1 as in &quot;5 things got worse&quot;</extracomment>
        <translation>In der Nacht: %1</translation>
    </message>
    <message>
        <source>None of them needs attention any more</source>
        <translation>Nichts davon erfordert noch Aufmerksamkeit</translation>
    </message>
    <message numerus="yes">
        <source>%Ln of them still need attention</source>
        <translation>
            <numerusform>%Ln davon erfordert noch Aufmerksamkeit</numerusform>
            <numerusform>%Ln davon erfordern noch Aufmerksamkeit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln consoles need attention</source>
        <translation>
            <numerusform>%Ln Konsole erfordert Aufmerksamkeit</numerusform>
            <numerusform>%Ln Konsolen erfordern Aufmerksamkeit</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing known needs attention</source>
        <translation>Nichts Bekanntes erfordert Aufmerksamkeit</translation>
    </message>
    <message>
        <source>Open Lodestar to see more</source>
        <translation>Öffnen Sie Lodestar für mehr</translation>
    </message>
    <message>
        <source>Lodestar can reach you</source>
        <translation>Lodestar kann Sie erreichen</translation>
    </message>
    <message>
        <source>This is how a message looks</source>
        <translation>So sieht eine Meldung aus</translation>
    </message>
</context>
<context>
    <name>lodestar::WatchText</name>
    <message>
        <source>every %1</source>
        <extracomment>%1 as in &quot;15 min&quot;</extracomment>
        <translation>alle %1</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>open</source>
        <translation>offene</translation>
    </message>
    <message>
        <source>open, call home</source>
        <translation>offene, Call-Home</translation>
    </message>
    <message>
        <source>all %1</source>
        <translation>alle %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 are left out until you refresh them by hand: their certificates changed.</source>
        <extracomment>%1 the names of so many consoles</extracomment>
        <translation>
            <numerusform>%1 wird ausgelassen, bis Sie von Hand aktualisieren: Das Zertifikat hat sich geändert.</numerusform>
            <numerusform>%1 werden ausgelassen, bis Sie von Hand aktualisieren: Die Zertifikate haben sich geändert.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln&#xa0;h</numerusform>
            <numerusform>%Ln&#xa0;h</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln&#xa0;min</numerusform>
            <numerusform>%Ln&#xa0;min</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>lodestar::WatchViewController</name>
    <message>
        <source>Watch</source>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>This system shows no messages. Attention still counts.</source>
        <translation>Dieses System zeigt keine Meldungen. „Auffälliges“ zählt weiter.</translation>
    </message>
    <message>
        <source>Reading goes on. At %1 one message sums up the night, if anything got worse.</source>
        <extracomment>%1 a time of day</extracomment>
        <translation>Das Lesen geht weiter. Um %1 fasst eine Meldung die Nacht zusammen, falls etwas schlechter wurde.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Every</source>
        <translation>Intervall</translation>
    </message>
    <message>
        <source>New Events</source>
        <translation>Neue Ereignisse</translation>
    </message>
</context>
<context>
    <name>lodestar::WindowDialogs</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Watches Corvel consoles and changes nothing.</source>
        <translation>Überwacht Corvel-Konsolen und ändert nichts.</translation>
    </message>
    <message>
        <source>Keep everything in this folder.</source>
        <translation>Alles in diesem Ordner aufbewahren.</translation>
    </message>
    <message>
        <source>Offer to send feedback and crash reports to this https address.</source>
        <translation>Anbieten, Rückmeldungen und Absturzberichte an diese https-Adresse zu senden.</translation>
    </message>
    <message>
        <source>Fill the screen.</source>
        <translation>Den Bildschirm füllen.</translation>
    </message>
    <message>
        <source>Leave once the first screen is drawn, for measuring.</source>
        <translation>Nach dem ersten gezeichneten Bildschirm enden, zum Messen.</translation>
    </message>
    <message>
        <source>Speak this language instead of the system&apos;s (en, de, fr, es, ja, ar).</source>
        <extracomment>In brackets codes, which stay as they are</extracomment>
        <translation>Diese Sprache statt der des Systems sprechen (en, de, fr, es, ja, ar).</translation>
    </message>
</context>
</TS>
